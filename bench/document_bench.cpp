#include "document/frmWrite.h"
#include "document/pageColours.h"
#include "document/slicedColouring.h"
#include "document/syntaxScanner.h"
#include "figures.h"
#include "pages.h"
#include "runningProgram.h"
#include "services/yielder.h"

#include <QWidget>

namespace
{
constexpr int Runs = 9;
constexpr qsizetype LargestColoured = 63900;

double scanTime(qsizetype characters)
{
    const QString text = page(characters, 1);
    const ColouringOptions options;
    return medianTime(Runs, [&] {
        SyntaxScanner scanner(text, options);
        scanner.setStructureShown(true);
        while (scanner.advance())
            ;
    });
}

/// What all the places at which a pass gives way to events cost together.
double yieldTime(qsizetype characters)
{
    SyntaxScanner scanner(page(characters, 1), ColouringOptions());
    int places = 0;
    while (scanner.advance())
        ++places;
    EventYielder yielder;
    return medianTime(Runs, [&] {
        yielder.beginPass();
        for (int i = 0; i < places; ++i)
            yielder.yield();
    });
}

/// The processor time of one key at the middle of a document, its handlers and the painting included.
double keyTime(RunningProgram &program, qsizetype characters, Qt::Key key, const QString &text)
{
    constexpr int Keys = 20;
    TextSurface &edit = program.document()->txtEdit();
    edit.setText(page(characters, 1));
    RunningProgram::settle();
    return medianTime(
               Runs,
               [&] {
                   for (int i = 0; i < Keys; ++i)
                       program.press(key, text);
               },
               [&] {
                   edit.setSelStart(edit.textLength() / 2);
                   RunningProgram::settle();
               }) /
           Keys;
}

double passTime(RunningProgram &program, qsizetype characters)
{
    auto &document = dynamic_cast<frmWrite &>(*program.document());
    const QString text = page(characters, 1);
    return medianTime(
        Runs,
        [&] {
            document.ExternalInitiateColourCodeAndDocStructure();
            RunningProgram::settle();
        },
        [&] {
            document.txtEdit().setText(text);
            RunningProgram::settle();
        });
}
double undoTime(RunningProgram &program, qsizetype characters)
{
    Document &document = *program.document();
    document.txtEdit().setText(page(characters, 1));
    document.UndoRedoChange();
    document.txtEdit().setSelText(QStringLiteral("x "));
    document.UndoRedoChange();
    return medianTime(
        Runs,
        [&] {
            document.Undo();
            RunningProgram::settle();
        },
        [&] {
            document.Redo();
            RunningProgram::settle();
        });
}

/// A page of block elements in lines of 40 characters, as the optimiser finds them.
QString blocksPage()
{
    QString text = QStringLiteral("<body>\r\n");
    for (int row = 0; row < 214; ++row)
        text += QStringLiteral("<table>\r\n<tr>\r\n<td>") + QString(140, u'x') +
                QStringLiteral("\r\n</td>\r\n</tr>\r\n</table>\r\n") + QString(93, u'y') + QStringLiteral("\r\n");
    return text + QStringLiteral("</body>\r\n");
}

double optimiseTime(RunningProgram &program)
{
    const QString text = blocksPage();
    return medianTime(
        5, [&] { program.document()->OptimiseSyntax(); }, [&] { program.document()->txtEdit().setText(text); });
}

/// The reading of what a screen shows behind a jump into a page that nothing has coloured yet.
double screenTime()
{
    constexpr qsizetype screen = 6000;
    const QString text = page(10'000'000, 1);
    qsizetype at = 0;
    return medianTime(Runs, [&] {
        at = (at + 3'333'333) % (text.size() - screen);
        PageColours colours(text, ColouringOptions(), true);
        colours.startNear(at);
        colours.advance(at + screen);
    });
}

double sliceTime()
{
    PageColours colours(page(1'000'000, 1), ColouringOptions(), true);
    return medianTime(Runs, [&] { colours.advance(colours.place() + SlicedColouring::SliceLength); });
}
} // namespace

void documentFigures(Figures &figures)
{
    constexpr double Milli = 1000;
    figures.add(QStringLiteral("scanning, 63,900 characters"), scanTime(LargestColoured) * Milli, QStringLiteral("ms"),
                2);
    figures.add(QStringLiteral("scanning, 63,900 against 8,000 characters, a character"),
                scanTime(LargestColoured) / scanTime(8000) * 8000 / double(LargestColoured), QStringLiteral("times"),
                1.2);
    figures.add(QStringLiteral("colours of a screen behind a jump, 10 MB"), screenTime() * Milli, QStringLiteral("ms"),
                5);
    figures.add(QStringLiteral("colours of a slice"), sliceTime() * Milli, QStringLiteral("ms"), 5);
    RunningProgram program;
    const double pass = passTime(program, LargestColoured);
    figures.add(QStringLiteral("colouring pass to painted, 63,900 characters"), pass * Milli, QStringLiteral("ms"), 30);
    figures.add(QStringLiteral("giving way to events, share of the pass"), yieldTime(LargestColoured) / pass,
                QStringLiteral("of it"), 0.2);
    figures.add(QStringLiteral("colouring pass of an uncoloured document, 1 MB"), passTime(program, 1'000'000) * Milli,
                QStringLiteral("ms"), 5);
    figures.add(QStringLiteral("undo, 63,900 characters"), undoTime(program, LargestColoured) * Milli,
                QStringLiteral("ms"), 20);
    figures.add(QStringLiteral("undo, 1 MB"), undoTime(program, 1'000'000) * Milli, QStringLiteral("ms"), 120);
    figures.add(QStringLiteral("optimising 60,000 characters in 1,500 lines"), optimiseTime(program) * Milli,
                QStringLiteral("ms"), 300);
    for (const qsizetype size : {LargestColoured, qsizetype(1'000'000)}) {
        const QString name = QStringLiteral(", %L1 characters").arg(size);
        figures.add(QStringLiteral("typed letter in the program") + name,
                    keyTime(program, size, Qt::Key_A, QStringLiteral("a")) * Milli, QStringLiteral("ms"), 0.7);
        figures.add(QStringLiteral("typed Space in the program") + name,
                    keyTime(program, size, Qt::Key_Space, QStringLiteral(" ")) * Milli, QStringLiteral("ms"),
                    size == LargestColoured ? 1 : 4);
    }
}
