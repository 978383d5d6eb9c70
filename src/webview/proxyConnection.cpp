#include "webview/proxyConnection.h"

#include "webview/refusingProxy.h"

#include <QTcpSocket>
#include <QUrl>

namespace
{
constexpr qsizetype LongestHead = 64 << 10;
constexpr qint64 MostWaiting = 1 << 20; // bytes that one side has sent and the other not taken yet

struct Request {
    QByteArray method;
    QUrl address;
    bool isTunnel() const { return method == "CONNECT"; }
};

Request parsed(const QByteArray &head)
{
    const QList<QByteArray> words = head.left(head.indexOf('\r')).split(' ');
    if (words.size() != 3)
        return {};
    const bool isTunnel = words[0] == "CONNECT";
    return {words[0], QUrl::fromEncoded(isTunnel ? "https://" + words[1] : words[1])};
}

bool isAboutConnection(const QByteArray &line)
{
    const QByteArray name = line.left(line.indexOf(':')).toLower();
    return name == "connection" || name == "proxy-connection" || name == "keep-alive";
}

/// What is said to the host itself. The connection serves this one request: the next one may be for another host.
QByteArray headFor(const Request &request, const QByteArray &head)
{
    const QByteArray target =
        request.address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    QByteArray result = request.method + ' ' + (target.startsWith('/') ? target : '/' + target) + " HTTP/1.1\r\n";
    const QList<QByteArray> lines = head.split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i)
        if (const QByteArray line = lines[i].trimmed(); !line.isEmpty() && !isAboutConnection(line))
            result += line + "\r\n";
    return result + "Connection: close\r\n\r\n";
}

qint64 bodySize(const QByteArray &head)
{
    const qsizetype start = head.toLower().indexOf("\r\ncontent-length:");
    if (start < 0)
        return 0;
    const qsizetype value = head.indexOf(':', start) + 1;
    return qMax<qint64>(0, head.mid(value, head.indexOf('\r', value) - value).trimmed().toLongLong());
}
} // namespace

ProxyConnection::ProxyConnection(const RefusingProxy &proxy, QTcpSocket &engine)
    : QObject(&engine), m_proxy(proxy), m_engine(engine)
{
    connect(&engine, &QTcpSocket::readyRead, this, [this] { m_host ? readRest() : readHead(); });
    connect(&engine, &QTcpSocket::disconnected, &engine, &QObject::deleteLater);
}

void ProxyConnection::readHead()
{
    m_read += m_engine.read(LongestHead);
    const qsizetype end = m_read.indexOf("\r\n\r\n");
    if (end >= 0) {
        const QByteArray head = m_read.left(end + 2);
        m_read.remove(0, end + 4);
        answer(head);
    } else if (m_read.size() >= LongestHead) {
        refuse("431 Too Much");
    }
}

void ProxyConnection::answer(const QByteArray &head)
{
    const Request request = parsed(head);
    const int port = request.address.port(80);
    if (!request.address.isValid() || !m_proxy.lets(request.address.host(), port)) {
        refuse("403 Refused");
        return;
    }
    m_isTunnel = request.isTunnel();
    m_head = m_isTunnel ? QByteArray() : headFor(request, head);
    m_owed = m_isTunnel ? 0 : bodySize(head);
    connectTo(request.address.host(), port);
}

void ProxyConnection::refuse(const char *status)
{
    m_engine.write(QByteArray("HTTP/1.1 ") + status + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    m_engine.disconnectFromHost();
}

void ProxyConnection::connectTo(const QString &host, int port)
{
    m_host = new QTcpSocket(this);
    m_host->setReadBufferSize(MostWaiting);
    m_engine.setReadBufferSize(MostWaiting);
    connect(m_host, &QTcpSocket::connected, this, &ProxyConnection::connected);
    connect(m_host, &QTcpSocket::readyRead, this, [this] { pump(*m_host, m_engine); });
    connect(&m_engine, &QTcpSocket::bytesWritten, this, [this] { pump(*m_host, m_engine); });
    connect(m_host, &QTcpSocket::bytesWritten, this, &ProxyConnection::readRest);
    connect(m_host, &QTcpSocket::errorOccurred, this, [this] {
        if (!m_isOpen)
            refuse("502 Not There");
    });
    connect(m_host, &QTcpSocket::disconnected, this, [this] {
        m_engine.write(m_host->readAll());
        m_engine.disconnectFromHost();
    });
    m_host->connectToHost(host, static_cast<quint16>(port));
}

void ProxyConnection::connected()
{
    m_isOpen = true;
    if (m_isTunnel)
        m_engine.write("HTTP/1.1 200 Open\r\n\r\n");
    else
        m_host->write(m_head);
    send();
    readRest();
}

/// Passes on what has been read already.
void ProxyConnection::send()
{
    const qsizetype size = m_isTunnel ? m_read.size() : qMin<qint64>(m_read.size(), m_owed);
    m_host->write(m_read.left(size));
    m_owed -= m_isTunnel ? 0 : size;
    m_read.clear();
}

void ProxyConnection::readRest()
{
    if (!m_isOpen || m_host->bytesToWrite() >= MostWaiting || m_engine.bytesAvailable() == 0)
        return;
    m_read = m_engine.read(MostWaiting);
    send();
}

void ProxyConnection::pump(QTcpSocket &from, QTcpSocket &to)
{
    if (to.bytesToWrite() < MostWaiting && from.bytesAvailable() > 0)
        to.write(from.read(MostWaiting));
}
