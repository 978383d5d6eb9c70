#include "startedProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

namespace
{
constexpr int RestMs = 150; ///< nothing happens for so long only at rest; the caret blinks at longer intervals
constexpr int GiveUpMs = 20000;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Processor time of all threads of a process, in nanoseconds.
qint64 processorTimeOf(qint64 process)
{
    qint64 time = 0;
    const QDir threads(QStringLiteral("/proc/%1/task").arg(process));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        time += contents(threads.filePath(thread) + QStringLiteral("/schedstat")).split(' ').value(0).toLongLong();
    return time;
}

double memoryOf(qint64 process)
{
    for (const QByteArray &line : contents(QStringLiteral("/proc/%1/smaps_rollup").arg(process)).split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).simplified().split(' ').value(0).toDouble() * 1024;
    }
    return 0;
}

/// Waits until the process has not run for RestMs. The moment in ms of `clock` at which it ran last; nothing if it goes
/// on and on or ends.
std::optional<qint64> waitForRest(QProcess &process, const QElapsedTimer &clock, qint64 from)
{
    qint64 lastRan = clock.elapsed();
    qint64 used = from;
    while (clock.elapsed() < GiveUpMs && process.state() == QProcess::Running) {
        QThread::usleep(500);
        const qint64 now = processorTimeOf(process.processId());
        if (now != used) {
            used = now;
            lastRan = clock.elapsed();
        } else if (clock.elapsed() - lastRan >= RestMs) {
            return lastRan;
        }
    }
    return std::nullopt;
}

void waitForMotion(const QProcess &process, const QElapsedTimer &clock)
{
    const qint64 used = processorTimeOf(process.processId());
    while (clock.elapsed() < GiveUpMs && processorTimeOf(process.processId()) == used)
        QThread::usleep(500);
}
} // namespace

VirtualDisplay::VirtualDisplay()
{
    const QString server = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (server.isEmpty())
        return;
    m_server.start(server,
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                    QStringLiteral("1400x1000x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!m_server.waitForReadyRead(10000))
        return;
    m_name = u':' + QString::fromLatin1(m_server.readAllStandardOutput().trimmed());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_name);
    m_manager.setProcessEnvironment(environment);
    m_manager.start(QStringLiteral("openbox"), QStringList());
    if (m_manager.waitForStarted(3000))
        QThread::msleep(500);
}

VirtualDisplay::~VirtualDisplay()
{
    for (QProcess *process : {&m_manager, &m_server}) {
        process->terminate();
        process->waitForFinished(3000);
    }
}

std::optional<StartFigures> startProgram(const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.start(QStringLiteral(TAGWRIGHTER_PROGRAM), QStringList());
    if (!process.waitForStarted(5000))
        return std::nullopt;
    std::optional<StartFigures> figures;
    // The first rest is the splash screen's; the main window is loaded behind it.
    if (waitForRest(process, clock, 0)) {
        waitForMotion(process, clock);
        if (const std::optional<qint64> ready = waitForRest(process, clock, processorTimeOf(process.processId())))
            figures = StartFigures{.wall = static_cast<double>(*ready) / 1000,
                                   .processor = static_cast<double>(processorTimeOf(process.processId())) / 1e9,
                                   .memory = memoryOf(process.processId())};
    }
    process.kill();
    process.waitForFinished(3000);
    return figures;
}
