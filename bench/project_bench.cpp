// What a large site costs: its project opened, shown and saved, and the map of its links.
#include "common/paths.h"
#include "common/programState.h"
#include "common/siteProject.h"
#include "figures.h"
#include "forms/formRuntime.h"
#include "project/frmProjectLayout.h"
#include "project/mapView.h"
#include "project/projectFile.h"
#include "runningProgram.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <random>

namespace
{
constexpr int Files = 500;
constexpr int LinksOfAFile = 10;
constexpr qsizetype FileSize = 20'000;
constexpr int Runs = 9;
constexpr double Milli = 1000;

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

QString pathOf(const QString &folder, int number)
{
    return joinPath(folder, QStringLiteral("page%1.htm").arg(number));
}

/// Of ten links eight go to pages by their full paths, one to a relative name and one to an address.
QByteArray pageOf(const QString &folder, std::mt19937 &random)
{
    const QByteArray filler = "<p class=\"text\">Some words of a page that nobody reads, in <b>bold</b> too.</p>\r\n";
    QByteArray page;
    for (int link = 0; link < LinksOfAFile; ++link) {
        const int other = static_cast<int>(random() % Files);
        QByteArray target = pathOf(folder, other).toUtf8();
        if (link == 8)
            target = "page" + QByteArray::number(other) + ".htm";
        else if (link == 9)
            target = "http://example.org/" + QByteArray::number(other % 50);
        page += "<a href=\"" + target + "\">link</a>\r\n";
        while (page.size() < FileSize / LinksOfAFile * (link + 1))
            page += filler;
    }
    return page;
}

/// A site of pages on the disk, and its project file.
QString makeSite(const QString &folder)
{
    std::mt19937 random(1);
    ProjectContents contents{.siteName = QStringLiteral("Large site")};
    for (int number = 0; number < Files; ++number) {
        writeFile(pathOf(folder, number), pageOf(folder, random));
        contents.editorFiles.append(pathOf(folder, number));
    }
    QString path = joinPath(folder, QStringLiteral("large.tsp"));
    writeFile(path, projectFileText(contents).toUtf8());
    return path;
}

/// How long the longest time was in which no event had its turn, in seconds, from its start to its reading.
class LongestBlock final : public QObject
{
public:
    LongestBlock()
    {
        m_timer.setInterval(0);
        connect(&m_timer, &QTimer::timeout, this, [this] { turn(); });
        m_timer.start();
        m_since.start();
    }
    double seconds()
    {
        turn();
        return static_cast<double>(m_longest) * 1e-9;
    }

private:
    void turn()
    {
        m_longest = std::max(m_longest, m_since.nsecsElapsed());
        m_since.start();
    }

    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

struct MapTimes {
    double built = 0;    ///< seconds until it is all there and painted
    double firstBox = 0; ///< until the first box is put down
    double block = 0;    ///< the longest time without a turn for events
};

MapTimes buildMap(frmProjectLayout &form)
{
    MapTimes times;
    QElapsedTimer timer;
    QTimer watch;
    watch.setInterval(0);
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (times.firstBox == 0 && form.BoxCount() > 0)
            times.firstBox = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    });
    RunningProgram::settle();
    LongestBlock block;
    watch.start();
    timer.start();
    form.Show();
    times.block = block.seconds();
    RunningProgram::settle();
    times.built = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    return times;
}

/// A frame of a drag over the sheet in a large window, in seconds.
double dragTime(const frmProjectLayout &form)
{
    constexpr int Frames = 60;
    form.window()->resize(1400, 900);
    RunningProgram::settle();
    auto *view = form.window()->findChild<MapView *>();
    view->scrollTo({});
    view->viewport()->repaint();
    return medianTime(
               Runs,
               [&] {
                   for (int frame = 1; frame <= Frames; ++frame) {
                       view->scrollTo(QPoint(9, 6) * frame);
                       RunningProgram::settle();
                   }
               },
               [&] {
                   view->scrollTo({});
                   RunningProgram::settle();
               }) /
           Frames;
}
} // namespace

void projectFigures(Figures &figures)
{
    const QTemporaryDir folder;
    const QString path = makeSite(folder.path());
    RunningProgram program;
    ProgramContext &context = program.program().context();
    const double opened = medianTime(Runs, [&] {
        context.project->OpenProject(path);
        RunningProgram::settle();
    });
    figures.add(QStringLiteral("project of 500 files read and shown"), opened * Milli, QStringLiteral("ms"), 60);
    const double saved = medianTime(Runs, [&] { context.state.project.save(); });
    figures.add(QStringLiteral("the same saved, beside the disk's flush"), saved * Milli, QStringLiteral("ms"), 30);

    auto &form = context.forms.get<frmProjectLayout>();
    const double before = memoryInUse();
    const MapTimes times = buildMap(form);
    figures.add(QStringLiteral("map of 500 files of 20 KB with 5,000 links"), times.built, QStringLiteral("s"), 2.5);
    figures.add(QStringLiteral("the first box of that map put down"), times.firstBox * Milli, QStringLiteral("ms"),
                100);
    figures.add(QStringLiteral("longest time without a turn for events meanwhile"), times.block * Milli,
                QStringLiteral("ms"), 50);
    figures.add(QStringLiteral("a frame of dragging that map"), dragTime(form) * Milli, QStringLiteral("ms"), 16);
    figures.add(QStringLiteral("memory of that map"), (memoryInUse() - before) / 1e6, QStringLiteral("MB"), 60);
    form.Unload();
}
