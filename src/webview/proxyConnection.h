#pragma once

#include <QByteArray>
#include <QObject>

class QTcpSocket;
class RefusingProxy;

/// One request that the engine makes of its proxy, and with it the connection: each is asked about by itself.
class ProxyConnection final : public QObject
{
    Q_OBJECT
public:
    /// Lives as long as the socket, which closes when all is done.
    ProxyConnection(const RefusingProxy &proxy, QTcpSocket &engine);

private:
    void readHead();
    void readRest();
    void answer(const QByteArray &head);
    void refuse(const char *status);
    void connectTo(const QString &host, int port);
    void connected();
    void send();
    void pump(QTcpSocket &from, QTcpSocket &to);

    const RefusingProxy &m_proxy;
    QTcpSocket &m_engine;
    QTcpSocket *m_host = nullptr; ///< the other side, once the request may pass
    QByteArray m_read;            ///< of the engine, and not sent on yet
    QByteArray m_head;            ///< what to say first to the other side
    bool m_isTunnel = false;      ///< everything behind the head is passed on as it stands
    qint64 m_owed = 0;            ///< bytes of the request's body that are still to come
    bool m_isOpen = false;        ///< the other side is there
};
