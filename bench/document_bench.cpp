#include "common/programState.h"
#include "document/frmWrite.h"
#include "document/pageColours.h"
#include "document/slicedColouring.h"
#include "document/syntaxScanner.h"
#include "figures.h"
#include "pages.h"
#include "runningProgram.h"
#include "services/yielder.h"

#include <QCoreApplication>
#include <QWidget>

#include <algorithm>
#include <utility>

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

/// The colours of what a screen shows behind a jump into a page that nothing has coloured yet: at the place where they
/// take longest, of many all over the text.
double worstScreenTime(const QString &text)
{
    constexpr int Places = 400;
    constexpr qsizetype Screen = 6000;
    double worst = 0;
    for (int i = 0; i < Places; ++i) {
        const qsizetype at = i * qsizetype(7'654'321) % (text.size() - Screen);
        worst = std::max(worst, medianTime(3, [&] {
                             formatsNearby(text, at, at + Screen, ColouringOptions(), {.HabitScripts = true});
                         }));
    }
    return worst;
}

/// Scripts and styles as long as colours are told back for, and longer ones.
QString scriptsPage(qsizetype characters)
{
    QString text;
    for (int part = 0; text.size() < characters; ++part) {
        const bool isScript = part % 2 == 0;
        const QString line = isScript ? QStringLiteral("  if (a[i] < 12) { b = \"c\" + d.e(/f/g); } // why\r\n")
                                      : QStringLiteral("  .a > b:hover { color: #ff0000; width: 12px } /* c */\r\n");
        text += (isScript ? QStringLiteral("<script>\r\n") : QStringLiteral("<style>\r\n")) +
                line.repeated(200 + part % 7 * 400) +
                (isScript ? QStringLiteral("</script>\r\n") : QStringLiteral("</style>\r\n"));
    }
    return text;
}
/// A page of 10 MB that the slices have not come to: the jump to a place in it, coloured and painted, where that takes
/// longest of many; and the longest slice of all.
std::pair<double, double> jumpAndSliceTimes(RunningProgram &program)
{
    program.program().context().state.habits.HabitColouring = true;
    TextSurface &edit = program.document()->txtEdit();
    edit.setText(page(10'000'000, 1));
    RunningProgram::settle();
    const auto begin = [&program] {
        dynamic_cast<frmWrite &>(*program.document()).ExternalInitiateColourCodeAndDocStructure();
    };
    begin();
    double worstJump = 0;
    for (int i = 1; i <= 100; ++i) {
        const auto jump = [&] {
            edit.setSelStart(i * qsizetype(7'654'321) % edit.textLength());
            program.surface()->repaint();
        };
        const auto goBack = [&] {
            edit.setSelStart(0);
            program.surface()->repaint();
        };
        worstJump = std::max(worstJump, medianTime(3, jump, goBack));
    }
    auto *slices = program.surface()->findChild<SlicedColouring *>();
    double longest = 0;
    for (double before = 0, took = 1; slices && took > 0; longest = std::max(longest, took)) {
        before = processorTime();
        QCoreApplication::sendPostedEvents(slices, QEvent::MetaCall); // what it posts is for the next time
        took = processorTime() - before;
        if (took < 0.0001) // nothing is on its way any more
            break;
    }
    program.program().context().state.habits.HabitColouring = false;
    edit.setText({});
    RunningProgram::settle();
    return {worstJump, longest};
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
    constexpr qsizetype Large = 10'000'000;
    const QString plain(Large, u'x');
    const std::pair<const char *, QString> texts[] = {{"tags", page(Large, 1)},
                                                      {"scripts", scriptsPage(Large)},
                                                      {"one line", plain},
                                                      {"an open comment", QStringLiteral("<!-- ") + plain},
                                                      {"an open value", QStringLiteral("<p id=\"") + plain}};
    for (const auto &[what, text] : texts)
        figures.add(
            QStringLiteral("colours of a screen behind a jump, 10 MB of %1, the worst of 400").arg(QLatin1String(what)),
            worstScreenTime(text) * Milli, QStringLiteral("ms"), 5);
    RunningProgram program;
    const double pass = passTime(program, LargestColoured);
    figures.add(QStringLiteral("colouring pass to painted, 63,900 characters"), pass * Milli, QStringLiteral("ms"), 30);
    const auto [jump, longest] = jumpAndSliceTimes(program);
    figures.add(QStringLiteral("jump into 10 MB to coloured and painted, the worst of 100"), jump * Milli,
                QStringLiteral("ms"), 16);
    figures.add(QStringLiteral("longest slice of 10 MB"), longest * Milli, QStringLiteral("ms"), 5);
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
