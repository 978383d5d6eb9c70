#pragma once

#include <QString>

namespace drive
{
struct RunOptions {
    QString installedData; ///< the data files of an installation, which seed the program's folder
    bool keepWorld = false;
};

/// `tagwrighter-drive --second-start ROOT TEXT` is a further start of the program in the world of a script, with TEXT
/// as its command line. It writes what the program tells its user, and SecondStartStands once the program runs.
inline constexpr const char *SecondStartOption = "--second-start";
inline constexpr const char *SecondStartStands = "\n(stands)\n";
/// Ends with the program, or with the process that started it.
int playSecondStart(const QString &root, const QString &commandLine);

/// Plays one script in a process of its own and waits for it. The exit status of the script, 1 if its process ended
/// before the script did. Before any application object is made.
int runScript(const QString &file, const RunOptions &options);
} // namespace drive
