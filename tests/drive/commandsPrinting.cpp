// Printing, and looking at what was printed.
#include "drive/commands.h"
#include "drive/stage.h"
#include "drive/told.h"

namespace drive
{
namespace
{
void failPrinting(Stage &stage, const Line &line)
{
    bool ok = false;
    const int number = line.words[0].toInt(&ok);
    if (!ok)
        stage.referee.wrong(QStringLiteral("%1 is no number").arg(line.words[0]));
    stage.desktop.printing.failNext(number);
}

void losePapers(Stage &stage, const Line &)
{
    stage.desktop.printing.loseModule();
}

void expectPrinted(Stage &stage, const Line &line)
{
    bool ok = false;
    const PrintedJob expected{line.words[0].toInt(&ok), line.words[1], line.words.mid(2)};
    if (!ok)
        stage.referee.wrong(QStringLiteral("%1 is no number of copies").arg(line.words[0]));
    Recorded<PrintedJob> &printed = stage.desktop.printing.printed;
    if (printed.isEmpty())
        stage.referee.fail(expected.told(), QStringLiteral("none"));
    const PrintedJob job = printed.take();
    if (job.copies != expected.copies || job.title != expected.title || job.lines != expected.lines)
        stage.referee.fail(expected.told(), job.told());
}

void expectNoPrinted(Stage &stage, const Line &)
{
    const Recorded<PrintedJob> &printed = stage.desktop.printing.printed;
    if (!printed.isEmpty())
        stage.referee.fail(QStringLiteral("no print job"), printed.oldest().told());
}

constexpr Command commands[] = {
    {"fail-printing", 1, 1, failPrinting},
    {"lose-papers", 0, 0, losePapers},
    {"expect-printed", 2, -1, expectPrinted},
    {"expect-no-printed", 0, 0, expectNoPrinted},
};
} // namespace

std::span<const Command> printCommands()
{
    return commands;
}
} // namespace drive
