#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <memory>

/// A server of the tests, in a process of its own on this machine alone. It ends with the object, and with the process
/// that made it.
class TestServer
{
public:
    /// `program`: "web.py" or "ftp.py". Nothing if it did not come up; `reason` then tells why.
    static std::unique_ptr<TestServer> start(const QString &program, const QStringList &arguments, QString &reason);
    ~TestServer();

    int port() const { return m_port; }
    /// Tells the server how to behave from now on, as in "slowly 500"; it has heard it when this returns.
    bool tell(const QString &command);
    /// Ends the server at once, as a machine that goes down.
    void kill();

private:
    TestServer() = default;
    QString readLine();

    QProcess m_process;
    int m_port = 0;
};
