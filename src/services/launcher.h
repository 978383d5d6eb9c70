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

    /// Starts a program and does not wait for it. The text is a path, or a path and arguments parted by blanks, with
    /// double quotes around what holds blanks; no shell reads it. False if it cannot be started.
    virtual bool start(const QString &command) = 0;
};
