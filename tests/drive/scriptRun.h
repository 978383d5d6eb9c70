#pragma once

#include <QString>

namespace drive
{
struct RunOptions {
    QString installedData; ///< the data files of an installation, which seed the program's folder
    bool keepWorld = false;
};

/// Plays one script in a process of its own and waits for it. The exit status of the script, 1 if its process ended
/// before the script did. Before any application object is made.
int runScript(const QString &file, const RunOptions &options);
} // namespace drive
