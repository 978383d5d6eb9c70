#include "storage/systemFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace
{
constexpr qint64 PieceSize = 1 << 20; ///< bytes that a copy holds in the memory
} // namespace

Descriptor::Descriptor(Descriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}

Descriptor::~Descriptor()
{
    if (m_number >= 0)
        ::close(m_number);
}

int errorOf(int result)
{
    return result < 0 ? errno : 0;
}

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

std::optional<QByteArray> bytesAt(int descriptor, qint64 offset, qint64 length)
{
    QByteArray bytes(length, Qt::Uninitialized);
    qint64 used = 0;
    while (used < length) {
        const ssize_t got = ::pread(descriptor, bytes.data() + used, static_cast<size_t>(length - used), offset + used);
        if (got < 0 && errno != EINTR)
            return std::nullopt;
        if (got == 0)
            break;
        used += std::max<ssize_t>(got, 0);
    }
    bytes.truncate(used);
    return bytes;
}

int copyBytes(int from, qint64 offset, qint64 length, int to)
{
    for (qint64 done = 0; done < length;) {
        const std::optional<QByteArray> piece = bytesAt(from, offset + done, std::min(PieceSize, length - done));
        if (!piece)
            return errno;
        if (piece->isEmpty())
            return 0;
        if (const int error = writeBytes(to, *piece))
            return error;
        done += piece->size();
    }
    return 0;
}

int flushFolder(const QByteArray &folder)
{
    const Descriptor descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen() || ::fsync(descriptor.number()) == 0)
        return 0;
    return errno == EIO ? EIO : 0;
}

QByteArray systemFolderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return QByteArrayLiteral(".");
    return slash == 0 ? QByteArrayLiteral("/") : path.first(slash);
}
