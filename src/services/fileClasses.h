#pragma once

#include <QString>

/// What the program's kinds of files are to the desktop.
class FileClasses
{
public:
    FileClasses() = default;
    FileClasses(const FileClasses &) = delete;
    FileClasses &operator=(const FileClasses &) = delete;
    virtual ~FileClasses() = default;

    /// Tells the desktop the program's file types and that the program opens them. Writes what differs from what the
    /// desktop knows already; a refused write is passed over.
    virtual void registerAll() = 0;
};
