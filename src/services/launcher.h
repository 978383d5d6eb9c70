#pragma once

#include <QString>

/// Starts what is not this program.
class Launcher
{
public:
    Launcher() = default;
    Launcher(const Launcher &) = delete;
    Launcher &operator=(const Launcher &) = delete;
    virtual ~Launcher() = default;

    /// Opens a URL, or the path of a file, in the program that the desktop has for it. False if there is none.
    virtual bool openUrl(const QString &target) = 0;

    /// Starts a program and does not wait for it. The whole text is its path, blanks included, or the name of one that
    /// the system finds; it gets no arguments, and nothing to read. False if it cannot be started: it is missing, no
    /// program, or not permitted.
    virtual bool start(const QString &program) = 0;
};
