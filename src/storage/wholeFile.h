#pragma once

#include "storage/systemFile.h"

#include <QByteArray>
#include <functional>
#include <optional>
#include <sys/types.h>

class SaveNotes;

/// Whether a write waits until the disk has it. What may be lost to a power cut, but not to a kill, need not wait.
enum class Durability { Flushed, Lazy };

/// The path that a write to `path` reaches, its last links followed; errors are told in errno terms. A link that leads
/// nowhere gives the place it names.
struct LinkTarget {
    QByteArray path;
    int error = 0;
};
LinkTarget followLinks(const QByteArray &path);

/// Replaces or makes the file `path` as a whole: it is written beside it and takes its place by a rename, after which
/// it keeps the old file's permissions and attributes, and its owner where the system lets it. A new file gets
/// `newMode`, less the process's mask. Gives 0 or the errno of the failure, after which nothing is left behind but the
/// old file.
///
/// With `notes`, a kill at any moment leaves nothing that the next start does not undo, and what no rename can do is
/// done in place, once the old bytes are in the notes: where the folder takes no second file, or the file has further
/// names, attributes of its own, or an owner that a new one could not be given.
int writeWholeFile(const QByteArray &path, QByteArrayView bytes, Durability durability, mode_t newMode = 0666,
                   const SaveNotes *notes = nullptr);

/// The same for a file that need not fit into the memory. `next` gives its next piece, an empty one at its end, or
/// nothing to call the writing off, which is told as ECANCELED.
using NextPiece = std::function<std::optional<QByteArray>()>;
int writeWholeFile(const QByteArray &path, const NextPiece &next, Durability durability, mode_t newMode = 0666,
                   const SaveNotes *notes = nullptr);
