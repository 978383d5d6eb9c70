#include "drive/diskRoom.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <sys/sendfile.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{
struct Limit {
    std::mutex mutex;
    bool set = false; ///< read without the mutex by writes that nobody limits
    QByteArray folder;
    qint64 bytes = 0;
};

Limit &limit()
{
    static Limit one;
    return one;
}

bool liesBelow(int descriptor, const QByteArray &folder)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "/proc/self/fd/%d", descriptor);
    std::array<char, 4096> path{};
    const ssize_t length = ::readlink(name.data(), path.data(), path.size());
    return length > 0 && QByteArrayView(path.data(), length).startsWith(QByteArray(folder + '/'));
}

/// How many of the bytes still fit; they count as written. -1 with ENOSPC if none does.
ssize_t take(int descriptor, size_t bytes)
{
    Limit &disk = limit();
    if (!disk.set || bytes == 0)
        return static_cast<ssize_t>(bytes);
    const int before = errno;
    const std::scoped_lock lock(disk.mutex);
    const bool counts = disk.set && liesBelow(descriptor, disk.folder);
    errno = before;
    if (!counts)
        return static_cast<ssize_t>(bytes);
    if (disk.bytes <= 0) {
        errno = ENOSPC;
        return -1;
    }
    const qint64 fits = std::min<qint64>(disk.bytes, static_cast<qint64>(bytes));
    disk.bytes -= fits;
    return fits;
}

/// The system's own function behind the one of the same name here.
template <class Function>
Function *systemOwn(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

size_t lengthOf(const struct iovec *parts, int count)
{
    size_t length = 0;
    for (int i = 0; i < count; ++i)
        length += parts[i].iov_len;
    return length;
}
} // namespace

// These stand before the system's own for the whole program, its libraries included. A call that moves several pieces
// at once is refused as a whole where it does not fit; nobody relies on how much of it is written.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved ones
extern "C" {
ssize_t write(int descriptor, const void *bytes, size_t count)
{
    static auto *const own = systemOwn<ssize_t(int, const void *, size_t)>("write");
    const ssize_t fits = take(descriptor, count);
    return fits < 0 ? -1 : own(descriptor, bytes, static_cast<size_t>(fits));
}

ssize_t pwrite(int descriptor, const void *bytes, size_t count, off_t offset)
{
    static auto *const own = systemOwn<ssize_t(int, const void *, size_t, off_t)>("pwrite");
    const ssize_t fits = take(descriptor, count);
    return fits < 0 ? -1 : own(descriptor, bytes, static_cast<size_t>(fits), offset);
}

ssize_t pwrite64(int descriptor, const void *bytes, size_t count, off64_t offset)
{
    static auto *const own = systemOwn<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    const ssize_t fits = take(descriptor, count);
    return fits < 0 ? -1 : own(descriptor, bytes, static_cast<size_t>(fits), offset);
}

ssize_t writev(int descriptor, const struct iovec *parts, int count)
{
    static auto *const own = systemOwn<ssize_t(int, const struct iovec *, int)>("writev");
    const auto length = static_cast<ssize_t>(lengthOf(parts, count));
    const ssize_t fits = take(descriptor, static_cast<size_t>(length));
    if (fits >= 0 && fits < length)
        errno = ENOSPC;
    return fits < length ? -1 : own(descriptor, parts, count);
}

ssize_t sendfile(int to, int from, off_t *offset, size_t count)
{
    static auto *const own = systemOwn<ssize_t(int, int, off_t *, size_t)>("sendfile");
    const ssize_t fits = take(to, count);
    return fits < 0 ? -1 : own(to, from, offset, static_cast<size_t>(fits));
}

ssize_t sendfile64(int to, int from, off64_t *offset, size_t count)
{
    static auto *const own = systemOwn<ssize_t(int, int, off64_t *, size_t)>("sendfile64");
    const ssize_t fits = take(to, count);
    return fits < 0 ? -1 : own(to, from, offset, static_cast<size_t>(fits));
}

ssize_t copy_file_range(int from, off64_t *fromOffset, int to, off64_t *toOffset, size_t count, unsigned int flags)
{
    static auto *const own =
        systemOwn<ssize_t(int, off64_t *, int, off64_t *, size_t, unsigned int)>("copy_file_range");
    const ssize_t fits = take(to, count);
    return fits < 0 ? -1 : own(from, fromOffset, to, toOffset, static_cast<size_t>(fits), flags);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace drive
{
void limitDisk(const QByteArray &folder, qint64 bytes)
{
    Limit &disk = limit();
    const std::scoped_lock lock(disk.mutex);
    disk.folder = folder;
    disk.bytes = bytes;
    disk.set = true;
}

void liftDiskLimit()
{
    Limit &disk = limit();
    const std::scoped_lock lock(disk.mutex);
    disk.set = false;
}

std::optional<DiskLimit> diskLimit()
{
    Limit &disk = limit();
    const std::scoped_lock lock(disk.mutex);
    return disk.set ? std::optional(DiskLimit{disk.folder, disk.bytes}) : std::nullopt;
}
} // namespace drive
