#include "storage/wholeFile.h"

#include "storage/freshFile.h"
#include "storage/overwritten.h"
#include "storage/saveNotes.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
constexpr int mostLinks = 40; // as many as the system itself follows

int writePieces(int descriptor, const NextPiece &next)
{
    while (true) {
        const std::optional<QByteArray> piece = next();
        if (!piece)
            return ECANCELED;
        if (piece->isEmpty())
            return 0;
        if (const int error = writeBytes(descriptor, *piece))
            return error;
    }
}

// Attributes beside the permissions: access lists, labels, what file managers note. A file system that has none of them
// is no failure. Whether the new file has all of them now.
bool copyAttributes(const QByteArray &from, int to)
{
    std::array<char, 4096> names{};
    const ssize_t length = ::listxattr(from.constData(), names.data(), names.size());
    bool all = true;
    for (ssize_t start = 0; start < length;) {
        const char *const name = names.data() + start;
        std::array<char, 65536> value{};
        const ssize_t size = ::getxattr(from.constData(), name, value.data(), value.size());
        const bool copied = size >= 0 && ::fsetxattr(to, name, value.data(), static_cast<size_t>(size), 0) == 0;
        all = all && (copied || qstrncmp(name, "security.", 9) == 0); // the system gives those by its own rules
        start += static_cast<ssize_t>(qstrlen(name)) + 1;
    }
    return all;
}

// Whether somebody gave the file attributes or an access list, rather than the system every file.
bool hasOwnAttributes(const QByteArray &path)
{
    std::array<char, 4096> names{};
    const ssize_t length = ::listxattr(path.constData(), names.data(), names.size());
    for (ssize_t start = 0; start < length;) {
        const QByteArrayView name(names.data() + start);
        if (name.startsWith("user.") || name == QByteArrayView("system.posix_acl_access"))
            return true;
        start += name.size() + 1;
    }
    return length < 0 && errno == ERANGE; // more than anybody copies
}

// Gives the new file the old one's owner, attributes and permissions. Where its group cannot be given, the bits of the
// group fall to those of everybody, for they were meant for other people. `all` tells whether nothing is missing.
int takeOver(const QByteArray &path, const struct stat &old, int descriptor, bool &all)
{
    mode_t mode = old.st_mode & 07777U;
    all = ::fchown(descriptor, old.st_uid, old.st_gid) == 0;
    if (!all) {
        mode &= 0777U;
        if (::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
            mode = (mode & 0707U) | (mode & 0007U) << 3U;
    }
    all = copyAttributes(path, descriptor) && all;
    return errorOf(::fchmod(descriptor, mode));
}

// 0 where the path is free or a file that this user may write; `old` is filled in where there is one.
int checkTarget(const QByteArray &path, std::optional<struct stat> &old)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return ENXIO;
    old = status;
    // A rename asks only the folder: without this, a file that is write-protected would be replaced.
    return errorOf(::faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS));
}

} // namespace

LinkTarget followLinks(const QByteArray &path)
{
    QByteArray current = path;
    for (int link = 0; link < mostLinks; ++link) {
        std::array<char, 4096> target{};
        const ssize_t length = ::readlink(current.constData(), target.data(), target.size());
        if (length < 0) // not a link, or not there
            return {current, errno == EINVAL || errno == ENOENT ? 0 : errno};
        const QByteArray named(target.data(), length);
        current = named.startsWith('/') ? named : systemFolderOf(current) + '/' + named;
    }
    return {current, ELOOP};
}

namespace
{
// Whether an error says that the folder takes no second file, or lets none take the place of the first: no right to
// it, a folder where only owners rename, a file that is mounted by itself.
bool isOfTheFolder(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

/// A save: where to, and what it may leave to the notes.
struct Save {
    QByteArray path; ///< its last links followed
    std::optional<struct stat> old;
    Durability durability;
    const SaveNotes *notes;

    bool mayBeInPlace() const { return old && notes && durability == Durability::Flushed; }
};

/// The same bytes once more, from the file that could not take the other one's place.
FileFiller copyOf(const FreshFile &fresh)
{
    return [&fresh](int to) {
        struct stat status = {};
        const int error = errorOf(::fstat(fresh.number(), &status));
        return error == 0 ? copyBytes(fresh.number(), 0, status.st_size, to) : error;
    };
}

int takePlace(const Save &save, FreshFile &fresh)
{
    bool all = true;
    int error = save.old ? takeOver(save.path, *save.old, fresh.number(), all) : 0;
    if (error != 0)
        return error;
    const bool hasMoreNames = save.old && save.old->st_nlink > 1;
    if (save.mayBeInPlace() && (hasMoreNames || !all || hasOwnAttributes(save.path))) {
        error = Overwritten::write(*save.notes, save.path, copyOf(fresh));
        if (error == 0 || hasMoreNames)
            return error; // a rename would part the names; of the rest, it keeps what can be kept
    }
    error = save.durability == Durability::Flushed ? errorOf(::fsync(fresh.number())) : 0;
    if (error == 0)
        error = fresh.moveTo(save.path);
    if (save.mayBeInPlace() && isOfTheFolder(error))
        return Overwritten::write(*save.notes, save.path, copyOf(fresh));
    if (error == 0 && save.durability == Durability::Flushed)
        error = flushFolder(systemFolderOf(save.path));
    return error;
}

/// Writes what `fill` puts into the descriptor it is given; 0 or an errno.
int writeFilled(const QByteArray &path, const FileFiller &fill, Durability durability, mode_t newMode,
                const SaveNotes *notes)
{
    if (path.isEmpty() || path.contains('\0'))
        return EINVAL;
    const LinkTarget target = followLinks(path);
    if (target.error != 0)
        return target.error;
    Save save{target.path, std::nullopt, durability, notes};
    if (const int error = checkTarget(target.path, save.old))
        return error;
    FreshFile fresh(systemFolderOf(target.path), save.old ? 0600 : newMode, notes);
    if (save.mayBeInPlace() && isOfTheFolder(fresh.error()))
        return Overwritten::write(*notes, target.path, fill);
    int error = fresh.error();
    if (error == 0)
        error = fill(fresh.number());
    return error == 0 ? takePlace(save, fresh) : error;
}
} // namespace

int writeWholeFile(const QByteArray &path, QByteArrayView bytes, Durability durability, mode_t newMode,
                   const SaveNotes *notes)
{
    return writeFilled(
        path, [bytes](int descriptor) { return writeBytes(descriptor, bytes); }, durability, newMode, notes);
}

int writeWholeFile(const QByteArray &path, const NextPiece &next, Durability durability, mode_t newMode,
                   const SaveNotes *notes)
{
    return writeFilled(
        path, [&next](int descriptor) { return writePieces(descriptor, next); }, durability, newMode, notes);
}
