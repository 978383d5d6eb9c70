#include "desktop/moduleTransfers.h"

#include "internet/addresses.h"
#include "services/loopback.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

namespace
{
/// Whether an interface leads out of this machine.
bool leadsOut(const ifaddrs &interface)
{
    const unsigned int flags = interface.ifa_flags;
    const bool up = (flags & IFF_UP) && (flags & IFF_RUNNING) && !(flags & IFF_LOOPBACK);
    const int family = interface.ifa_addr ? interface.ifa_addr->sa_family : AF_UNSPEC;
    return up && (family == AF_INET || family == AF_INET6);
}

bool isInNetwork()
{
    ifaddrs *all = nullptr;
    if (getifaddrs(&all) != 0)
        return true; // let the transfer find out
    bool found = false;
    for (const ifaddrs *each = all; each && !found; each = each->ifa_next)
        found = leadsOut(*each);
    freeifaddrs(all);
    return found;
}

QString withoutPort(const QString &server)
{
    static const QRegularExpression port(QStringLiteral(":\\d*$"));
    return QString(server).remove(port);
}
} // namespace

ModuleTransfers::ModuleTransfers(const QStringList &folders, const TransferGround &ground)
    : m_part(folders, QStringLiteral("tagwrighter-transfers.so")), m_ground(ground)
{
}

ModuleTransfers::~ModuleTransfers()
{
    if (m_engine)
        m_engine->shutDown();
}

bool ModuleTransfers::isConnected(const QString &address)
{
    return isLoopbackName(withoutPort(serverOf(address))) || isInNetwork();
}

StartedTransfer ModuleTransfers::start(const TransferRequest &request, TransferWatcher &watcher)
{
    if (!m_engine)
        m_engine = m_part.engine<TransferEngine>();
    return m_engine ? m_engine->start(request, m_ground, watcher) : StartedTransfer{nullptr, m_part.reason()};
}

std::optional<QString> ModuleTransfers::trust(const UnknownHost &host)
{
    QDir().mkpath(QFileInfo(m_ground.knownHosts).path());
    QFile file(m_ground.knownHosts);
    const QByteArray line = host.entry.toLatin1() + '\n';
    if (file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(line) == line.size() && file.flush())
        return std::nullopt;
    return QStringLiteral("The key of the server could not be kept in \"%1\": %2.")
        .arg(m_ground.knownHosts, file.errorString());
}
