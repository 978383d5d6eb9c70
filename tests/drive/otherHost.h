#pragma once

#include "drive/answers.h"

#include <QTcpServer>
#include <QUdpSocket>

namespace drive
{
/// Stands for any other host that a page might reach: it takes whatever comes, by TCP and by UDP on one port of this
/// machine, and notes it.
class OtherHost final : public QObject
{
    Q_OBJECT
public:
    OtherHost();

    bool isListening() const { return m_server.isListening(); }
    /// Host and port as they stand in an address.
    QString name() const;

    /// "METHOD PATH" and, behind a blank, the body; "UDP" or "CONNECTION" for what is no request.
    Recorded<QString> requests;

private:
    void take();
    void read(QTcpSocket &socket);

    QTcpServer m_server;
    QUdpSocket m_datagrams;
};
} // namespace drive
