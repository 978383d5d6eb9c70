#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QTcpServer>

class QUrl;

/// The proxy through which all that the engine sends goes, of whatever kind it is: it refuses everything but what it
/// was told to let pass. So a way out that nobody thought of ends here, too.
class RefusingProxy final : public QObject
{
    Q_OBJECT
public:
    explicit RefusingProxy(QObject *parent = nullptr);

    /// Where it listens, on this machine alone; 0 if it could not.
    quint16 port() const { return m_server.serverPort(); }
    /// Lets connections to that address's host and port pass for the next minute.
    void letPass(const QUrl &address);
    bool lets(const QString &host, int port) const;

private:
    void take();

    QTcpServer m_server;
    QHash<QString, QDeadlineTimer> m_passes; ///< by host and port
};
