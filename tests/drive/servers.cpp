#include "drive/servers.h"

namespace drive
{
bool Servers::serve(const QString &kind, const QStringList &words, QString &reason)
{
    const QString program = kind == QStringLiteral("http") ? QStringLiteral("web.py") : QStringLiteral("ftp.py");
    auto server = TestServer::start(program, words, reason);
    if (!server)
        return false;
    m_ports[kind] = server->port();
    m_servers[kind] = std::move(server);
    return true;
}

bool Servers::tell(const QString &kind, const QString &command)
{
    const auto found = m_servers.find(kind);
    return found != m_servers.end() && found->second->tell(command);
}

bool Servers::kill(const QString &kind)
{
    const auto found = m_servers.find(kind);
    if (found == m_servers.end())
        return false;
    found->second->kill();
    m_servers.erase(found);
    return true;
}

QString Servers::expanded(QString text) const
{
    for (const auto &[kind, port] : m_ports)
        text.replace(QStringLiteral("%%1PORT%").arg(kind.toUpper()), QString::number(port));
    return text;
}
} // namespace drive
