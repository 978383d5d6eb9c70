#pragma once

#include "common/fileErrors.h"
#include "files/combinedTemplate.h"

#include <functional>

class FileSystem;

/// Combined templates on the disk. Files are copied in pieces, so that none of them need fit into the memory.

/// How much of a file is in the memory at a time, in bytes.
constexpr qint64 PieceSize = 1'000'000;

/// Whether the file starts as a combined template does.
bool IsCombinedTemplate(FileSystem &files, const QString &path);

/// Writes an empty container over the start of the file, which is made if need be; what an old file holds behind that
/// place stays.
std::optional<FileError> writeEmptyContainer(FileSystem &files, const QString &path);

/// One file on its way into a container.
struct FileToPack {
    QString name;        ///< in the container
    QString source = {}; ///< its path; empty: `bytes` are its contents
    QByteArray bytes = {};
};

struct PackingReports {
    std::function<void(const QString &name)> begun;  ///< the file of that name is being added
    std::function<void(const QString &name)> failed; ///< it could not be read, or has no place in a container
};

/// Writes a container of these files in their order, in place of whatever stands at `path`. A file that is missing is
/// passed over; one that cannot be read or is too big is reported and left out. Gives the names that are in it.
struct Packed {
    QStringList names;
    std::optional<FileError> error; ///< there is no new container
};
Packed writeContainer(FileSystem &files, const QString &path, QList<FileToPack> toPack, const PackingReports &reports);

/// What a container's directory names.
struct ContainerListing {
    QList<container::Entry> entries;
    std::optional<FileError> error;
};
ContainerListing readContainer(FileSystem &files, const QString &path);

/// Writes the entry's contents to a file, in place of whatever is there. A place that does not lie in the container is
/// told as a corrupt file.
std::optional<FileError> extractEntry(FileSystem &files, const QString &path, const container::Entry &entry,
                                      const QString &target);
