#pragma once

#include "common/fileErrors.h"
#include "common/fileStamp.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// What a read gave: the bytes, or why there are none.
struct FileContents {
    QByteArray bytes;
    std::optional<FileError> error;
};

/// Gives the next piece of what is to be written, an empty one at its end; an error calls the writing off.
using PieceSource = std::function<FileContents()>;

/// What a properties window shows of a file.
struct FileDetails {
    qint64 size = 0; ///< bytes
    QDateTime created;
    QDateTime accessed;
    QDateTime modified;
    bool isFolder = false;
    bool readOnly = false; ///< cannot be written by this user
    bool hidden = false;   ///< its name starts with a dot
};

struct FolderEntry {
    QString name;
    bool isFolder = false;
    bool operator==(const FolderEntry &) const = default;
};

struct FolderListing {
    QList<FolderEntry> entries; ///< by name, by their codes; without "." and ".."
    std::optional<FileError> error;
};

/// The files of the machine. Paths are native; a failure is told by its result, nothing is thrown. What is read or
/// written as a file is a regular file: pipes, devices and sockets are refused, they could be waited for without end.
class FileSystem
{
public:
    FileSystem() = default;
    FileSystem(const FileSystem &) = delete;
    FileSystem &operator=(const FileSystem &) = delete;
    virtual ~FileSystem() = default;

    virtual FileContents readAll(const QString &path) = 0;

    /// Opens the file and closes it again: nothing, or why it cannot be read. What only the reading itself would meet,
    /// such as a bad disk, is not found.
    virtual std::optional<FileError> checkReadable(const QString &path) = 0;

    /// Replaces or makes the file as a whole: after a failure, a full disk or a kill at any moment, the file has either
    /// its old contents or the new ones. An existing file keeps its permissions, and its owner where the system lets
    /// it; a symbolic link stays, and what it points to is replaced. Nothing: it is on the disk.
    virtual std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) = 0;
    /// The same for what can be made again at any time: it does not wait until the disk has it.
    virtual std::optional<FileError> writeScratch(const QString &path, const QByteArray &bytes)
    {
        return writeWhole(path, bytes);
    }

    /// `length` bytes of a file from an offset, fewer where it ends before: for files that need not fit into the
    /// memory.
    virtual FileContents readPart(const QString &path, qint64 offset, qint64 length)
    {
        const FileContents file = readAll(path);
        return {file.bytes.mid(offset, length), file.error};
    }
    /// writeWhole, piece by piece. An error of the source is the result, and the file has its old contents.
    virtual std::optional<FileError> writeInPieces(const QString &path, const PieceSource &next)
    {
        QByteArray bytes;
        for (FileContents piece = next(); piece.error || !piece.bytes.isEmpty(); piece = next()) {
            if (piece.error)
                return piece.error;
            bytes += piece.bytes;
        }
        return writeWhole(path, bytes);
    }

    virtual bool isLink(const QString &) { return false; } ///< a symbolic link, wherever it leads
    virtual bool exists(const QString &path) = 0;          ///< a file of any kind, no folder
    virtual bool isFolder(const QString &path) = 0;
    /// Whether both lead to one file, by a link, a ".." or a double separator too. Of files that are not there, the
    /// paths are compared.
    virtual bool isSameFile(const QString &a, const QString &b) { return a == b; }
    /// Where volumes that a user has plugged in or mounted are found. Asks none of them: one on a machine that is
    /// asleep would not answer.
    virtual QStringList volumes() { return {}; }
    virtual std::optional<qint64> size(const QString &path) = 0;
    virtual std::optional<FileStamp> stamp(const QString &path) = 0;
    virtual std::optional<FileDetails> details(const QString &path) = 0;

    /// From now on tells when something happens to one of these files, or to one that takes the place of one; an empty
    /// list tells nothing any more. `changed` runs from the event loop. Where nothing can be told, nothing happens.
    virtual void watch(const QStringList & /*paths*/, std::function<void()> /*changed*/) {} // NOLINT

    virtual FolderListing list(const QString &folder) = 0;
    /// Makes the folder and those above it that are missing. One that is there already is no failure.
    virtual std::optional<FileError> makeFolder(const QString &folder) = 0;
    virtual std::optional<FileError> removeFile(const QString &path) = 0;
    /// Copies contents and permissions, whole as writeWhole does; an existing target is replaced.
    /// Gives a file another name beside it, which is free; the new path, or nothing if it could not be had.
    virtual std::optional<QString> setAside(const QString &path) = 0;
    virtual std::optional<FileError> copyFile(const QString &from, const QString &to) = 0;
};
