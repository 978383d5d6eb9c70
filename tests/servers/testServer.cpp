#include "servers/testServer.h"

#include <QElapsedTimer>

namespace
{
constexpr int StartMilliseconds = 20'000;
}

std::unique_ptr<TestServer> TestServer::start(const QString &program, const QStringList &arguments, QString &reason)
{
    std::unique_ptr<TestServer> server(new TestServer);
    QProcess &process = server->m_process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The one of the system: another one that comes first on the path may lack the modules.
    process.start(QStringLiteral("/usr/bin/python3"),
                  QStringList{QStringLiteral("-B"), QStringLiteral(TEST_SERVERS "/") + program} + arguments);
    const QString line = process.waitForStarted() ? server->readLine() : QString();
    server->m_port = line.toInt();
    if (server->m_port > 0)
        return server;
    reason = QStringLiteral("%1 said \"%2\" instead of its port").arg(program, line);
    return nullptr;
}

TestServer::~TestServer()
{
    m_process.closeWriteChannel(); // it ends by that
    if (!m_process.waitForFinished(3000))
        kill();
}

void TestServer::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

QString TestServer::readLine()
{
    QElapsedTimer time;
    time.start();
    while (!m_process.canReadLine() && time.elapsed() < StartMilliseconds)
        if (!m_process.waitForReadyRead(static_cast<int>(StartMilliseconds - time.elapsed())))
            break;
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

bool TestServer::tell(const QString &command)
{
    m_process.write(command.toUtf8() + '\n');
    m_process.waitForBytesWritten(1000);
    return readLine() == QStringLiteral("ok");
}
