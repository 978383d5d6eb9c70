#include "drive/otherHost.h"

#include <QRegularExpression>
#include <QTcpSocket>
#include <QTimer>

namespace drive
{
namespace
{
constexpr int SilentMilliseconds = 500; // after which a connection that says nothing is noted as one

qsizetype bodySize(const QString &head)
{
    static const QRegularExpression length(QStringLiteral("\r\ncontent-length: *(\\d+)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return length.match(head).captured(1).toLongLong();
}

/// A whole request as it is noted; nothing as long as more is to come.
std::optional<QString> noted(const QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf("\r\n\r\n");
    if (end < 0)
        return std::nullopt;
    const QString head = QString::fromLatin1(bytes.left(end));
    const QByteArray body = bytes.mid(end + 4);
    if (body.size() < bodySize(head))
        return std::nullopt;
    const QString line = head.section(u' ', 0, 1);
    return body.isEmpty() ? line : line + u' ' + QString::fromUtf8(body);
}

const QByteArray Answer = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 11\r\n"
                          "Access-Control-Allow-Origin: *\r\nConnection: close\r\n\r\n<p>Received";
} // namespace

OtherHost::OtherHost()
{
    connect(&m_server, &QTcpServer::newConnection, this, &OtherHost::take);
    connect(&m_datagrams, &QUdpSocket::readyRead, this, [this] {
        while (m_datagrams.hasPendingDatagrams()) {
            m_datagrams.readDatagram(nullptr, 0);
            requests.add(QStringLiteral("UDP"));
        }
    });
    m_server.listen(QHostAddress::LocalHost);
    m_datagrams.bind(QHostAddress::LocalHost, m_server.serverPort());
}

QString OtherHost::name() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort());
}

void OtherHost::take()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(SilentMilliseconds, socket, [this, socket] {
            if (socket->property("noted").isNull())
                requests.add(QStringLiteral("CONNECTION"));
        });
        read(*socket);
    }
}

void OtherHost::read(QTcpSocket &socket)
{
    const std::optional<QString> request = noted(socket.peek(socket.bytesAvailable()));
    if (!request)
        return;
    socket.setProperty("noted", true);
    requests.add(*request);
    socket.readAll();
    socket.write(Answer);
    socket.disconnectFromHost();
}
} // namespace drive
