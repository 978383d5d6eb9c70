#include "webview/refusingProxy.h"

#include "webview/proxyConnection.h"

#include <QTcpSocket>
#include <QUrl>

namespace
{
constexpr int PassMilliseconds = 60'000;

QString nameOf(const QString &host, int port)
{
    return host.toLower() + u':' + QString::number(port);
}
} // namespace

RefusingProxy::RefusingProxy(QObject *parent) : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &RefusingProxy::take);
    m_server.listen(QHostAddress::LocalHost);
}

void RefusingProxy::letPass(const QUrl &address)
{
    const int port = address.port(address.scheme() == u"https" ? 443 : 80);
    m_passes.insert(nameOf(address.host(), port), QDeadlineTimer(PassMilliseconds));
}

bool RefusingProxy::lets(const QString &host, int port) const
{
    const auto pass = m_passes.constFind(nameOf(host, port));
    return pass != m_passes.constEnd() && !pass->hasExpired();
}

void RefusingProxy::take()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection())
        new ProxyConnection(*this, *socket);
}
