#include "storage/overwritten.h"

#include "storage/freshFile.h"
#include "storage/systemFile.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
// A note is this line, three numbers of a fixed width, the path, the old bytes and the new ones.
constexpr QByteArrayView Mark("Tagwrighter overwrites 1\n");
constexpr QByteArrayView NoteEnding(".old");
constexpr int NumberWidth = 20;
constexpr qint64 HeadSize = Mark.size() + 3 * NumberWidth;
constexpr qint64 PieceSize = 1 << 20; ///< bytes that are compared at once
constexpr qint64 LongestPath = 1 << 16;

struct Note {
    QByteArray path;
    qint64 oldSize = 0;
    qint64 newSize = 0;
    qint64 oldStart() const { return HeadSize + path.size(); }
    qint64 newStart() const { return oldStart() + oldSize; }
};

QByteArray headOf(const Note &note)
{
    QByteArray head = Mark.toByteArray();
    for (const qint64 number : {qint64(note.path.size()), note.oldSize, note.newSize})
        head += QByteArray::number(number).rightJustified(NumberWidth, '0');
    return head + note.path;
}

/// Nothing for a file that is no note, or not all of one.
std::optional<Note> noteOf(int file)
{
    const std::optional<QByteArray> head = bytesAt(file, 0, HeadSize);
    if (!head || head->size() != HeadSize || !head->startsWith(Mark))
        return std::nullopt;
    const auto number = [&](int place) {
        return head->mid(Mark.size() + place * NumberWidth, NumberWidth).toLongLong();
    };
    struct stat status = {};
    if (number(0) <= 0 || number(0) > LongestPath || number(1) < 0 || number(2) < 0 || ::fstat(file, &status) != 0)
        return std::nullopt;
    const std::optional<QByteArray> path = bytesAt(file, HeadSize, number(0));
    Note note{path.value_or(QByteArray()), number(1), number(2)};
    const bool whole = note.path.size() == number(0) && note.newStart() + note.newSize == status.st_size;
    return whole ? std::optional(note) : std::nullopt;
}

/// The file itself, if it is one that can be written.
Descriptor openTarget(const QByteArray &path)
{
    Descriptor file(::open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!file.isOpen() || (::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode)))
        return file;
    errno = ENXIO;
    return Descriptor();
}

/// Has the disk keep room for that many bytes, so that a full disk is met before anything is lost. Where the file
/// system cannot, the writing itself is left to find out.
int reserve(int file, qint64 size)
{
    if (size == 0 || ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size) == 0)
        return 0;
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? errno : 0;
}

/// Gives the file a part of the note as its contents, and flushes it; 0 or an errno.
int fillFrom(int noteFile, qint64 start, qint64 size, int file)
{
    int error = errorOf(static_cast<int>(std::min<off_t>(::lseek(file, 0, SEEK_SET), 0)));
    if (error == 0)
        error = copyBytes(noteFile, start, size, file);
    if (error == 0)
        error = errorOf(::ftruncate(file, size));
    return error == 0 ? errorOf(::fsync(file)) : error;
}

int putBack(const Note &note, int noteFile, int file)
{
    return fillFrom(noteFile, note.oldStart(), note.oldSize, file);
}

/// The note with the old bytes of `file` and the new ones in it; 0 or an errno.
int writeNote(Note &note, int noteFile, int file, const FileFiller &fill)
{
    int error = writeBytes(noteFile, headOf(note));
    if (error == 0)
        error = copyBytes(file, 0, note.oldSize, noteFile);
    if (error == 0)
        error = fill(noteFile);
    if (error != 0)
        return error;
    note.newSize = ::lseek(noteFile, 0, SEEK_CUR) - note.newStart();
    const QByteArray head = headOf(note);
    if (note.newSize < 0 || ::pwrite(noteFile, head.constData(), static_cast<size_t>(head.size()), 0) != head.size())
        return EIO; // the file was shorter than it said, or there is no room for what is there already
    return errorOf(::fsync(noteFile));
}

/// Writes over the file; 0 or an errno. `untouched` tells whether it is as it was, then or again.
int writeOver(const Note &note, int noteFile, int file, bool &untouched)
{
    if (const int error = reserve(file, note.newSize)) {
        untouched = ::ftruncate(file, note.oldSize) == 0; // gives back what was reserved in vain
        return error;
    }
    const int error = fillFrom(noteFile, note.newStart(), note.newSize, file);
    untouched = error != 0 && putBack(note, noteFile, file) == 0;
    return error;
}

enum class Contents { Old, New, Between, Others };

/// What the file holds. Between the two is also what a power cut leaves: pieces that never reached the disk are zeros.
Contents contentsOf(const Note &note, int noteFile, int file)
{
    struct stat status = {};
    const auto [least, most] = std::minmax(note.oldSize, note.newSize);
    if (::fstat(file, &status) != 0 || status.st_size < least || status.st_size > most)
        return Contents::Others;
    bool isOld = status.st_size == note.oldSize;
    bool isNew = status.st_size == note.newSize;
    for (qint64 start = 0; start < status.st_size; start += PieceSize) {
        const auto is = bytesAt(file, start, PieceSize);
        const auto old =
            bytesAt(noteFile, note.oldStart() + start, std::clamp(note.oldSize - start, qint64(0), PieceSize));
        const auto fresh =
            bytesAt(noteFile, note.newStart() + start, std::clamp(note.newSize - start, qint64(0), PieceSize));
        if (!is || !old || !fresh)
            return Contents::Others;
        for (qsizetype i = 0; i < is->size(); ++i) {
            const bool likeOld = i < old->size() && is->at(i) == old->at(i);
            const bool likeNew = i < fresh->size() && is->at(i) == fresh->at(i);
            if (!likeOld && !likeNew && is->at(i) != '\0')
                return Contents::Others;
            isOld = isOld && likeOld;
            isNew = isNew && likeNew;
        }
    }
    if (isNew)
        return Contents::New;
    return isOld ? Contents::Old : Contents::Between;
}

/// Keeps the old bytes as a file of their own; its path, or nothing if there is no room.
std::optional<QString> keepAside(const Note &note, int noteFile, const QByteArray &folder)
{
    if (makeOwnFolder(folder) != 0)
        return std::nullopt;
    const QByteArray name = note.path.mid(note.path.lastIndexOf('/') + 1);
    for (int number = 1; number < 1000; ++number) {
        const QByteArray path = folder + '/' + QByteArray::number(number) + '-' + name;
        const Descriptor file(::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!file.isOpen() && errno == EEXIST)
            continue;
        const bool kept = file.isOpen() && putBack(note, noteFile, file.number()) == 0;
        return kept ? std::optional(QFile::decodeName(path)) : std::nullopt;
    }
    return std::nullopt;
}

/// Whether the note is about that file.
bool isAbout(const QByteArray &noteName, const QByteArray &path)
{
    const Descriptor noteFile(::open(noteName.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    const std::optional<Note> note = noteOf(noteFile.number());
    return note && note->path == path;
}

/// Saves of that file that broke off come to their end first: what stands in it now is not its old contents.
bool settleOlder(const SaveNotes &notes, const QByteArray &path)
{
    const QString pattern = QStringLiteral("*") + QString::fromLatin1(NoteEnding);
    const QDir folder(QFile::decodeName(notes.folder()));
    SaveNotes::Settled settled;
    for (const QString &entry : folder.entryList({pattern}, QDir::Files | QDir::Hidden)) {
        const QByteArray older = notes.folder() + '/' + QFile::encodeName(entry);
        if (isAbout(older, path) && !Overwritten::settle(older, notes.asideFolder(), settled))
            return false;
    }
    return true;
}

int writeNoted(const SaveNotes &notes, const QByteArray &path, const FileFiller &fill)
{
    const Descriptor file = openTarget(path);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return errno;
    FreshFile noteFile(notes.folder(), 0600, nullptr);
    Note note{path, status.st_size, 0};
    int error = noteFile.error();
    if (error == 0)
        error = writeNote(note, noteFile.number(), file.number(), fill);
    const QByteArray name = notes.folder() + '/' + freshSaveName() + NoteEnding.toByteArray();
    if (error == 0)
        error = noteFile.moveTo(name);
    if (error != 0)
        return error;
    bool untouched = true;
    error = flushFolder(notes.folder());
    if (error == 0)
        error = writeOver(note, noteFile.number(), file.number(), untouched);
    if (error == 0 || untouched)
        ::unlink(name.constData());
    return error;
}
} // namespace

int Overwritten::write(const SaveNotes &notes, const QByteArray &path, const FileFiller &fill)
{
    if (const int error = notes.makeFolder())
        return error;
    const int error = settleOlder(notes, path) ? writeNoted(notes, path, fill) : EBUSY;
    notes.removeIfEmpty();
    return error;
}

bool Overwritten::isOne(const QByteArray &note)
{
    return note.endsWith(NoteEnding);
}

bool Overwritten::settle(const QByteArray &note, const QByteArray &asideFolder, SaveNotes::Settled &settled)
{
    const Descriptor noteFile(::open(note.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!noteFile.isOpen() || ::flock(noteFile.number(), LOCK_EX | LOCK_NB) != 0)
        return false; // its program is running
    const std::optional<Note> about = noteOf(noteFile.number());
    if (!about)
        return false;
    const Descriptor file = openTarget(about->path);
    const bool gone = !file.isOpen() && (errno == ENOENT || errno == ENOTDIR || errno == ENXIO || errno == ELOOP);
    if (!file.isOpen() && !gone)
        return false; // there may be a right to it again at another start
    const Contents contents = gone ? Contents::Others : contentsOf(*about, noteFile.number(), file.number());
    if (contents == Contents::Others) {
        const std::optional<QString> kept = keepAside(*about, noteFile.number(), asideFolder);
        if (!kept)
            return false;
        settled.aside << *kept;
    } else if (contents == Contents::Between) {
        if (putBack(*about, noteFile.number(), file.number()) != 0)
            return false;
        settled.putBack << QFile::decodeName(about->path);
    }
    return ::unlink(note.constData()) == 0;
}
