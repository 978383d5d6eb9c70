#pragma once

#include <QtGlobal>

/// Tells one state of a file from another, also where a write kept the size. Two writes into the same file within the
/// few milliseconds that the system counts times in may look alike.
struct FileStamp {
    qint64 size = 0;
    qint64 modifiedNanoseconds = 0; ///< since 1970
    quint64 inode = 0;
    bool operator==(const FileStamp &) const = default;
};
