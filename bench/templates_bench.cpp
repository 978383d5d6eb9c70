// What templates, the forms of the shell and printing cost.
#include "desktop/desktopPrinting.h"
#include "figures.h"
#include "files/printLayout.h"
#include "files/templateFiles.h"
#include "opening.h"
#include "runningProgram.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "shell/frmNew.h"
#include "shell/frmOptions.h"
#include "shell/frmWelcome.h"
#include "storage/localFileSystem.h"
#include "surface/editSurface.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace
{
constexpr double Milli = 1000;
constexpr int TemplateCount = 100;
constexpr int FileCount = 200;
constexpr qint64 FileSize = 500'000; // 100 MB together
constexpr int Runs = 3;

void writeTemplates(const QString &appPath)
{
    QDir().mkpath(appPath + QStringLiteral("/Template"));
    for (int i = 0; i < TemplateCount; ++i) {
        QFile file(QStringLiteral("%1/Template/Page %2.tpl").arg(appPath).arg(i));
        if (file.open(QIODevice::WriteOnly))
            file.write("<html><body><p>A template</p></body></html>");
    }
}

QList<FileToPack> filesToPack(const QString &folder, int count, qint64 size)
{
    QList<FileToPack> files{{.name = container::pageName(), .bytes = "<p>A page</p>"}};
    const QByteArray bytes(static_cast<qsizetype>(size), 'x');
    for (int i = 0; i < count; ++i) {
        const QString path = QStringLiteral("%1/%2.bin").arg(folder).arg(i);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        files.append({.name = QStringLiteral("%1.bin").arg(i), .source = path});
    }
    return files;
}

/// Real time, for the disk does the work.
double realTime(const std::function<void()> &run)
{
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void pack(const QString &target, const QList<FileToPack> &files)
{
    LocalFileSystem disk;
    writeContainer(disk, target, files, {.begun = [](const QString &) {}, .failed = [](const QString &) {}});
}

void unpack(const QString &source, const QString &folder)
{
    LocalFileSystem disk;
    for (const container::Entry &entry : readContainer(disk, source).entries)
        extractEntry(disk, source, entry, folder + u'/' + entry.name);
}

/// The most that this program has had in the memory up to now, in bytes; 0 if the system does not tell. What getrusage
/// tells begins at what the process had before it became this program.
double mostMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("VmHWM:"))
            return line.mid(6).chopped(2).trimmed().toDouble() * 1024;
    return 0;
}

/// What a copy by the system's own tool takes, until the disk has it, as our files are written.
double copyTime(const QString &from, const QString &to)
{
    return realTime([&] {
        QDir(to).removeRecursively();
        QProcess::execute(QStringLiteral("sh"),
                          {QStringLiteral("-c"), QStringLiteral("cp -r \"$1\" \"$2\" && sync -f \"$2\""),
                           QStringLiteral("sh"), from, to});
    });
}
} // namespace

void templateFigures(Figures &figures)
{
    {
        RunningProgram running(writeTemplates);
        const FormRuntime &forms = running.program().context().forms;
        figures.add(QStringLiteral("frmOptions from command to painted"),
                    formOpeningTime(forms.get<frmOptions>()) * Milli, QStringLiteral("ms"), 60);
        figures.add(QStringLiteral("frmNew with 100 templates"), formOpeningTime(forms.get<frmNew>()) * Milli,
                    QStringLiteral("ms"), 60);
        // The running program starts without it.
        settings::write(running.program().context().services.settings, settings::WelcomeScreen, QStringLiteral("True"));
        figures.add(QStringLiteral("frmWelcome with 100 templates"), formOpeningTime(forms.get<frmWelcome>()) * Milli,
                    QStringLiteral("ms"), 60);
    }
    QTemporaryDir folder;
    const QString sources = folder.filePath(QStringLiteral("sources"));
    const QString target = folder.filePath(QStringLiteral("target"));
    const QString whole = folder.filePath(QStringLiteral("t.ctp"));
    QDir().mkpath(sources);
    QDir().mkpath(target);
    const QList<FileToPack> files = filesToPack(sources, FileCount, FileSize);
    const double copied = copyTime(sources, folder.filePath(QStringLiteral("copy")));
    figures.add(QStringLiteral("200 files of 100 MB together, copied by cp"), copied * Milli, QStringLiteral("ms"));
    figures.add(QStringLiteral("the same packed into a container"), realTime([&] { pack(whole, files); }) * Milli,
                QStringLiteral("ms"), 2 * copied * Milli);
    figures.add(QStringLiteral("the same unpacked"), realTime([&] { unpack(whole, target); }) * Milli,
                QStringLiteral("ms"), 2 * copied * Milli);
    figures.add(QStringLiteral("memory for a container of 1 GB, at most"),
                printedByChild({QStringLiteral("--container-memory")}) / 1e6, QStringLiteral("MB"), 64);
}

int printContainerMemory()
{
    constexpr int large = 2;
    constexpr qint64 half = 500'000'000;
    QTemporaryDir folder;
    QDir().mkpath(folder.filePath(QStringLiteral("out")));
    QList<FileToPack> files{{.name = container::pageName(), .bytes = "<p>A page</p>"}};
    for (int i = 0; i < large; ++i) {
        const QString path = folder.filePath(QString::number(i));
        QFile file(path); // a file of holes costs no disk
        if (!file.open(QIODevice::WriteOnly) || !file.resize(half))
            return 1;
        files.append({.name = QString::number(i), .source = path});
    }
    const double before = mostMemory();
    const QString whole = folder.filePath(QStringLiteral("t.ctp"));
    pack(whole, files);
    unpack(whole, folder.filePath(QStringLiteral("out")));
    std::printf("%.0f\n", mostMemory() - before);
    return 0;
}

void printFigures(Figures &figures)
{
    QTemporaryDir folder;
    DesktopPrinting printing(partFolders());
    auto &printer = dynamic_cast<QPrinter &>(printing.printer()->device());
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(QStringLiteral("out.pdf")));
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const Paper paper = printing.paper(font);
    EditSurface surface;
    surface.setText(
        QStringLiteral("    <p class=\"a\">A line of source that is as long as most of them</p>\r\n").repeated(60'000));
    PrintJob job{.title = QStringLiteral("page.html"), .font = font};
    int pages = 0;
    const double time = medianTime(1, [&] {
        job.pages = laidOutPages(surface, paper, {});
        job.pages.resize(std::min<qsizetype>(job.pages.size(), 1000));
        printing.print(job, [&pages](int page) {
            pages = page + 1;
            return true;
        });
    });
    figures.add(QStringLiteral("%1 pages of source printed to PDF").arg(pages), time, QStringLiteral("s"), 10);
}
