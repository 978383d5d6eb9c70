// What a transfer takes beside the curl program, and whether the window answers meanwhile.
#include "browser/modulePageViews.h"
#include "desktop/moduleTransfers.h"
#include "figures.h"
#include "servers/testServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>

namespace
{
constexpr int Runs = 5;
constexpr qsizetype PageSize = 50'000'000;
constexpr int Transfers = 200;
constexpr int Longest = 60'000; ///< milliseconds after which a transfer is given up
constexpr double MiB = 1024.0 * 1024.0;

class Watcher final : public TransferWatcher
{
public:
    void finished(const TransferEnd &ended) override
    {
        bytes = ended.body.size();
        loop.quit();
    }

    qsizetype bytes = 0;
    QEventLoop loop;
};

/// Gets the page once; false if it did not come. It waits in an event loop as the program does: a test's waiting would
/// sleep between two turns, and be measured along.
bool get(ModuleTransfers &transfers, const QString &address, qsizetype size)
{
    Watcher watcher;
    const StartedTransfer started = transfers.start({.url = address}, watcher);
    if (!started.transfer)
        return false;
    QTimer::singleShot(Longest, &watcher.loop, &QEventLoop::quit);
    watcher.loop.exec();
    return watcher.bytes == size;
}

double milliseconds(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) * 1e-6;
}

/// The median of the runs' times.
template <class Run>
double medianOf(const Run &run)
{
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        run();
        times.push_back(milliseconds(clock));
    }
    std::sort(times.begin(), times.end());
    return times[Runs / 2];
}

/// The longest time between two turns of the event loop while something runs.
template <class Run>
double longestPause(const Run &run)
{
    QElapsedTimer clock;
    double longest = 0;
    QTimer turns; // one of no time at all would wait until nothing comes any more
    turns.setTimerType(Qt::PreciseTimer);
    QObject::connect(&turns, &QTimer::timeout, [&] {
        longest = std::max(longest, milliseconds(clock));
        clock.start();
    });
    clock.start();
    turns.start(1);
    run();
    return longest;
}

qsizetype entriesOf(const char *folder)
{
    return QDir(QString::fromLatin1(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}
} // namespace

void transferFigures(Figures &figures)
{
    const QTemporaryDir folder;
    QFile page(folder.filePath(QStringLiteral("page.htm")));
    if (!page.open(QIODevice::WriteOnly) || page.write(QByteArray(PageSize, 'x')) != PageSize)
        return;
    page.close();
    QFile small(folder.filePath(QStringLiteral("small.htm")));
    if (!small.open(QIODevice::WriteOnly) || small.write("<p>") != 3)
        return;
    small.close();
    QString reason;
    const auto server = TestServer::start(QStringLiteral("web.py"), {folder.path()}, reason);
    if (!server)
        return;
    const QString root = QStringLiteral("http://127.0.0.1:%1/").arg(server->port());
    ModuleTransfers transfers(partFolders(),
                              {.knownHosts = folder.filePath(QStringLiteral("hosts")), .loopbackOnly = true});
    const QString address = root + QStringLiteral("page.htm");
    const auto getPage = [&] { return get(transfers, address, PageSize); };
    if (!getPage())
        return;

    const double own = medianOf(getPage);
    const QString target = folder.filePath(QStringLiteral("copy.htm"));
    const double tool = medianOf([&] {
        QProcess::execute(QStringLiteral("curl"), {QStringLiteral("-s"), QStringLiteral("-o"), target, address});
    });
    figures.add(QStringLiteral("50 MB from a server on this machine"), own, QStringLiteral("ms"));
    figures.add(QStringLiteral("  the curl program, to a file"), tool, QStringLiteral("ms"));
    figures.add(QStringLiteral("  ours in relation to it"), own / tool, QStringLiteral("times"), 1.5);
    figures.add(QStringLiteral("  the longest pause of the event loop"), longestPause(getPage), QStringLiteral("ms"),
                20);

    const QString little = root + QStringLiteral("small.htm");
    get(transfers, little, 3);
    const qsizetype files = entriesOf("/proc/self/fd");
    const qsizetype threads = entriesOf("/proc/self/task");
    const double memory = memoryInUse();
    for (int i = 0; i < Transfers; ++i)
        get(transfers, little, 3);
    QTest::qWait(100);
    figures.add(QStringLiteral("200 transfers: sockets and files left"), double(entriesOf("/proc/self/fd") - files), {},
                0);
    figures.add(QStringLiteral("  threads left"), double(entriesOf("/proc/self/task") - threads), {}, 0);
    figures.add(QStringLiteral("  memory left"), (memoryInUse() - memory) / MiB, QStringLiteral("MiB"), 1);
}
