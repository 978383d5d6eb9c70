#include "desktop/oneInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace
{
constexpr char Received = 'r';
constexpr qsizetype LongestLine = 64 * 1024;
constexpr int WaitSeconds = 3;

/// Nothing where the path is too long for a socket.
bool addressOf(const QByteArray &path, sockaddr_un &address)
{
    std::memset(&address, 0, sizeof(address));
    address.sun_family = AF_UNIX;
    if (path.isEmpty() || path.size() >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return true;
}

/// A socket whose reads and writes end after a while; -1 for none.
int openSocket()
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval wait{WaitSeconds, 0};
    if (socket >= 0) {
        ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof(wait));
        ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &wait, sizeof(wait));
    }
    return socket;
}

bool writeAll(int socket, const QByteArray &bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::send(socket, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done), MSG_NOSIGNAL);
        if (written <= 0 && errno != EINTR)
            return false;
        done += written > 0 ? written : 0;
    }
    return true;
}

QByteArray readLine(int socket)
{
    QByteArray bytes;
    char part[4096];
    while (bytes.size() <= LongestLine) {
        const ssize_t read = ::recv(socket, part, sizeof(part), 0);
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0)
            return bytes;
        bytes.append(part, read);
    }
    return {};
}
} // namespace

OneInstance::OneInstance(const QString &path, std::function<void(const QString &)> received)
    : m_path(QFile::encodeName(path)), m_received(std::move(received))
{
    sockaddr_un address;
    if (!addressOf(m_path, address))
        return;
    QDir().mkpath(QFileInfo(path).path());
    ::unlink(m_path.constData()); // what a program that was killed has left
    m_socket = openSocket();
    const mode_t others = ::umask(0077);
    const bool bound = m_socket >= 0 && ::bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0;
    ::umask(others);
    if (!bound || ::listen(m_socket, 8) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { accept(); });
}

OneInstance::~OneInstance()
{
    m_notifier.reset();
    if (m_socket < 0)
        return;
    ::close(m_socket);
    ::unlink(m_path.constData());
}

/// The other start sends its line and no more, so its end comes at once; the time limit is for strangers.
void OneInstance::accept()
{
    const int other = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    if (other < 0)
        return;
    const timeval wait{1, 0};
    ::setsockopt(other, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof(wait));
    const QByteArray line = readLine(other);
    const bool whole = line.endsWith('\n');
    if (whole)
        writeAll(other, QByteArray(1, Received));
    ::close(other);
    if (whole)
        m_received(QString::fromUtf8(line.chopped(1)));
}

bool OneInstance::handOver(const QString &path, const QString &line)
{
    sockaddr_un address;
    if (!addressOf(QFile::encodeName(path), address))
        return false;
    const int socket = openSocket();
    if (socket < 0)
        return false;
    char answer = 0;
    const bool taken = ::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0 &&
                       writeAll(socket, line.toUtf8() + '\n') && ::shutdown(socket, SHUT_WR) == 0 &&
                       ::recv(socket, &answer, 1, 0) == 1 && answer == Received;
    ::close(socket);
    return taken;
}
