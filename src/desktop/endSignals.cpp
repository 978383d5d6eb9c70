#include "desktop/endSignals.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr std::array endingSignals{SIGTERM, SIGHUP, SIGINT};

volatile std::sig_atomic_t toldBy = -1; // a signal's handler is given nothing but its number

void tell(int /*signal*/)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(toldBy, &byte, 1);
}
} // namespace

EndSignals::EndSignals(std::function<void()> asked)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, m_sockets) != 0)
        return;
    toldBy = m_sockets[0];
    auto *notifier = new QSocketNotifier(m_sockets[1], QSocketNotifier::Read, this);
    QObject::connect(notifier, &QSocketNotifier::activated, this, [notifier, asked = std::move(asked)] {
        notifier->setEnabled(false); // once is enough
        asked();
    });
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART;
    for (const int signal : endingSignals)
        ::sigaction(signal, &action, nullptr);
}

EndSignals::~EndSignals()
{
    for (const int signal : endingSignals)
        ::signal(signal, SIG_DFL);
    toldBy = -1;
    for (const int socket : m_sockets)
        if (socket >= 0)
            ::close(socket);
}
