#pragma once

#include "storage/saveNotes.h"

#include <QByteArray>
#include <functional>

/// Writes what belongs into a file through the descriptor it is given, from where that stands; 0 or an errno.
using FileFiller = std::function<int(int)>;

/// A save that writes over a file where it stands, since a new file cannot take its place or would not be the same: the
/// folder takes no second file, or the file has more names or attributes than one could be given. Old and new bytes
/// stand in the notes, and on the disk, before the first byte of the file changes.
class Overwritten
{
public:
    /// Gives the file `path`, which is there, what `fill` writes, and flushes it; 0 or an errno. After a failure the
    /// file is as it was, or its old bytes are noted and go back into it at the next save or start.
    static int write(const SaveNotes &notes, const QByteArray &path, const FileFiller &fill);

    /// Whether the path is that of a note about such a save.
    static bool isOne(const QByteArray &note);
    /// Brings the save that it is about to an end if its process has ended. A file that is neither as it was nor as it
    /// was to be, nor between the two, is another program's: the old bytes then go into `asideFolder`. False where it
    /// is not at an end yet.
    static bool settle(const QByteArray &note, const QByteArray &asideFolder, SaveNotes::Settled &settled);
};
