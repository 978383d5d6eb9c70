// What opening files costs, and what a program at rest does.
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "figures.h"
#include "pages.h"
#include "runningProgram.h"
#include "services/settings.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <sys/resource.h>

namespace
{
constexpr int Runs = 5;
constexpr double Milli = 1000;
constexpr qsizetype Huge = 10'000'000;

QString fileWith(const RunningProgram &program, const QString &name, const QString &text)
{
    QString path = program.home() + u'/' + name;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
    return path;
}

void open(RunningProgram &program, const QString &path)
{
    program.program().context().files->OpenDocumentFile(path, false);
    RunningProgram::settle();
}

void closeDocument(RunningProgram &program)
{
    program.document()->boolDirty = false;
    program.document()->unload();
    RunningProgram::settle();
}

/// From the command to the painted page, with its colouring if it is coloured.
double openingTime(RunningProgram &program, const QString &path)
{
    const double time = medianTime(
        Runs, [&] { open(program, path); },
        [&, first = true]() mutable {
            if (!first)
                closeDocument(program);
            first = false;
        });
    closeDocument(program);
    return time;
}

QString singleLine(qsizetype characters)
{
    return QStringLiteral("<p class=\"a\">some words</p> ").repeated(characters / 27);
}

/// What the program does within so many seconds of which nobody does anything.
struct Rest {
    double processor = 0;  ///< seconds
    double waking = 0;     ///< times that a thread went back to sleep
    double pageFaults = 0; ///< memory that the system had taken away meanwhile and gave back
};

Rest restFor(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    rusage before{};
    rusage after{};
    getrusage(RUSAGE_SELF, &before);
    const double start = processorTime();
    loop.exec();
    const double time = processorTime() - start;
    getrusage(RUSAGE_SELF, &after);
    return {.processor = time,
            .waking = static_cast<double>(after.ru_nvcsw - before.ru_nvcsw),
            .pageFaults = static_cast<double>(after.ru_minflt + after.ru_majflt - before.ru_minflt - before.ru_majflt)};
}
} // namespace

void openingFigures(Figures &figures)
{
    RunningProgram program;
    const QString small = fileWith(program, QStringLiteral("small.htm"), page(1'000'000, 1));
    const QString large = fileWith(program, QStringLiteral("large.htm"), page(Huge, 1));
    const QString line = fileWith(program, QStringLiteral("line.htm"), singleLine(1'000'000));
    figures.add(QStringLiteral("opening a page, 1 MB"), openingTime(program, small) * Milli, QStringLiteral("ms"), 100);
    figures.add(QStringLiteral("opening a page, 10 MB"), openingTime(program, large) * Milli, QStringLiteral("ms"),
                900);
    figures.add(QStringLiteral("opening a single line of 1 MB"), openingTime(program, line) * Milli,
                QStringLiteral("ms"), 500);
    figures.add(QStringLiteral("memory of a character of an opened page, 10 MB"),
                printedByChild({QStringLiteral("--opening-memory")}) / double(Huge), QStringLiteral("bytes"), 20);
}

int printOpeningMemory()
{
    RunningProgram program;
    const QString path = fileWith(program, QStringLiteral("large.htm"), page(Huge, 1));
    const double before = memoryInUse();
    open(program, path);
    std::printf("%.0f\n", memoryInUse() - before);
    return 0;
}

namespace
{
/// Five documents, one with a page in it, for so many seconds in which nobody does anything.
Rest restOfFive(RunningProgram &program)
{
    open(program, fileWith(program, QStringLiteral("page.htm"), page(60'000, 1)));
    for (int i = 0; i < 4; ++i)
        program.program().context().newBlankDocument();
    const int blinking = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    restFor(4); // the colouring, the preview, and what else follows an opening
    const Rest rest = restFor(10);
    QApplication::setCursorFlashTime(blinking);
    return rest;
}

void showByTabs(RunningProgram &program)
{
    const ProgramContext &context = program.program().context();
    settings::write(context.services.settings, settings::SplitEditPreview, QStringLiteral("False"));
    for (Document *document : context.mainWindow->openDocuments()) {
        document->SplitEditingPreviewWindows();
        document->RepositionEditingandPreviewWindows();
    }
}
} // namespace

void idleFigures(Figures &figures)
{
    const auto add = [&figures](const QString &how, const Rest &rest, std::optional<double> limit) {
        const QString name = QStringLiteral("at rest for 10 s, ") + how;
        figures.add(name + QStringLiteral(": processor"), rest.processor * Milli, QStringLiteral("ms"), limit);
        figures.add(name + QStringLiteral(": waking"), rest.waking, QStringLiteral("times"));
        figures.add(name + QStringLiteral(": page faults"), rest.pageFaults, QStringLiteral("times"));
    };
    // What waking up costs after so long a rest is the machine's affair, and on some of them more than the program's.
    const Rest nothing = restFor(10);
    add(QStringLiteral("no program at all"), nothing, std::nullopt);
    {
        RunningProgram program;
        showByTabs(program);
        add(QStringLiteral("five documents"), restOfFive(program), 1 + nothing.processor * Milli);
    }
    RunningProgram program;
    add(QStringLiteral("five documents with previews"), restOfFive(program), std::nullopt);
}
