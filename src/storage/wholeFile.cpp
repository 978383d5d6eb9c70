#include "storage/wholeFile.h"

#include <QRandomGenerator>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
constexpr int mostLinks = 40; // as many as the system itself follows

// An open file that is closed at the end, whatever happens before.
class Descriptor
{
public:
    explicit Descriptor(int number) : descriptor(number) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }

    int number() const { return descriptor; }
    int close() // the errno of the close, for some file systems tell only then that the disk is full
    {
        const int result = ::close(descriptor);
        descriptor = -1;
        return result == 0 ? 0 : errno;
    }

private:
    int descriptor;
};

int errorOf(int result)
{
    return result < 0 ? errno : 0;
}

QByteArray freshName(const QByteArray &folder)
{
    return folder + "/.tagwrighter-" + QByteArray::number(QRandomGenerator::system()->generate64(), 36) + ".tmp";
}

int openNamed(const QByteArray &folder, mode_t mode, QByteArray &name)
{
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = freshName(folder);
        const int descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (descriptor >= 0 || errno != EEXIST)
            return descriptor;
    }
    return -1;
}

// The new file while it is being written. Where the file system can, it has no name until it is whole, so that a kill
// leaves nothing behind in the user's folder.
class FreshFile
{
public:
    FreshFile(const QByteArray &folderPath, mode_t mode) : folder(folderPath), descriptor(openFresh(mode)) {}
    FreshFile(const FreshFile &) = delete;
    FreshFile &operator=(const FreshFile &) = delete;
    ~FreshFile()
    {
        if (!name.isEmpty())
            ::unlink(name.constData());
    }

    int error() const { return openError; }
    int number() const { return descriptor.number(); }

    int moveTo(const QByteArray &path)
    {
        int failure = giveName();
        if (failure == 0)
            failure = descriptor.close();
        if (failure == 0)
            failure = errorOf(::rename(name.constData(), path.constData()));
        if (failure == 0)
            name.clear();
        return failure;
    }

private:
    int openFresh(mode_t mode)
    {
        int opened = -1;
        if (::access("/proc/self/fd", X_OK) == 0)
            opened = ::open(folder.constData(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode);
        if (opened < 0)
            opened = openNamed(folder, mode, name);
        if (opened < 0) {
            openError = errno;
            name.clear();
        }
        return opened;
    }

    int giveName()
    {
        if (!name.isEmpty())
            return 0;
        const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor.number());
        const QByteArray chosen = freshName(folder);
        if (::linkat(AT_FDCWD, self.constData(), AT_FDCWD, chosen.constData(), AT_SYMLINK_FOLLOW) != 0)
            return errno;
        name = chosen;
        return 0;
    }

    QByteArray folder;
    QByteArray name; // empty while the file has none
    int openError = 0;
    Descriptor descriptor;
};

int writeBytes(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    return 0;
}

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
// is no failure.
void copyAttributes(const QByteArray &from, int to)
{
    std::array<char, 4096> names{};
    const ssize_t length = ::listxattr(from.constData(), names.data(), names.size());
    for (ssize_t start = 0; start < length;) {
        const char *const name = names.data() + start;
        std::array<char, 65536> value{};
        const ssize_t size = ::getxattr(from.constData(), name, value.data(), value.size());
        if (size >= 0)
            (void)::fsetxattr(to, name, value.data(), static_cast<size_t>(size), 0);
        start += static_cast<ssize_t>(qstrlen(name)) + 1;
    }
}

// Gives the new file the old one's owner, attributes and permissions. Where its group cannot be given, the bits of the
// group fall to those of everybody, for they were meant for other people.
int takeOver(const QByteArray &path, const struct stat &old, int descriptor)
{
    mode_t mode = old.st_mode & 07777U;
    if (::fchown(descriptor, old.st_uid, old.st_gid) != 0) {
        mode &= 0777U;
        if (::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
            mode = (mode & 0707U) | (mode & 0007U) << 3U;
    }
    copyAttributes(path, descriptor);
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

int flushFolder(const QByteArray &folder)
{
    const Descriptor descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.number() < 0 || ::fsync(descriptor.number()) == 0)
        return 0;
    return errno == EIO ? EIO : 0; // many file systems cannot flush a folder, or need not
}
} // namespace

QByteArray systemFolderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return QByteArrayLiteral(".");
    return slash == 0 ? QByteArrayLiteral("/") : path.first(slash);
}

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
/// Writes what `fill` puts into the descriptor it is given; 0 or an errno.
int writeFilled(const QByteArray &path, const std::function<int(int)> &fill, Durability durability, mode_t newMode)
{
    if (path.isEmpty() || path.contains('\0'))
        return EINVAL;
    const LinkTarget target = followLinks(path);
    if (target.error != 0)
        return target.error;
    std::optional<struct stat> old;
    if (const int error = checkTarget(target.path, old))
        return error;

    const QByteArray folder = systemFolderOf(target.path);
    FreshFile fresh(folder, old ? 0600 : newMode);
    int error = fresh.error();
    if (error == 0)
        error = fill(fresh.number());
    if (error == 0 && old)
        error = takeOver(target.path, *old, fresh.number());
    if (error == 0 && durability == Durability::Flushed)
        error = errorOf(::fsync(fresh.number()));
    if (error == 0)
        error = fresh.moveTo(target.path);
    if (error == 0 && durability == Durability::Flushed)
        error = flushFolder(folder);
    return error;
}
} // namespace

int writeWholeFile(const QByteArray &path, QByteArrayView bytes, Durability durability, mode_t newMode)
{
    return writeFilled(
        path, [bytes](int descriptor) { return writeBytes(descriptor, bytes); }, durability, newMode);
}

int writeWholeFile(const QByteArray &path, const NextPiece &next, Durability durability, mode_t newMode)
{
    return writeFilled(
        path, [&next](int descriptor) { return writePieces(descriptor, next); }, durability, newMode);
}
