#include "drive/secondStarts.h"

#include "drive/scriptRun.h"
#include "drive/world.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

namespace drive
{
namespace
{
constexpr int LongestMilliseconds = 30000;

/// What the process has written, without the line that tells that it stands there.
QString saidBy(QByteArray output, bool running)
{
    if (running)
        output.chop(qstrlen(SecondStartStands));
    return QString::fromUtf8(output) + (running ? QStringLiteral("running") : QStringLiteral("ended"));
}
} // namespace

SecondStarts::SecondStarts(const World &world) : m_world(world) {}

SecondStarts::~SecondStarts()
{
    for (const auto &process : m_running) {
        process->kill();
        process->waitForFinished();
    }
}

void SecondStarts::start(const QString &commandLine)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(QCoreApplication::applicationFilePath(),
                   {QLatin1String(SecondStartOption), m_world.root(), commandLine});
    QByteArray output;
    QElapsedTimer timer;
    timer.start();
    const auto stands = [&] { return output.endsWith(SecondStartStands); };
    // The first start may have to answer the second one meanwhile, so its events are dealt with.
    while (!stands() && timer.elapsed() < LongestMilliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        const bool ended = process->state() == QProcess::NotRunning;
        process->waitForReadyRead(10);
        output += process->readAll();
        if (ended)
            break;
    }
    told.add(saidBy(output, stands()));
    m_running.push_back(std::move(process));
}
} // namespace drive
