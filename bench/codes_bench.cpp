// What the program's knowledge of HTML and CSS costs: its load, and the code assistant at each key.
#include "codeknowledge/codeLibraries.h"
#include "codeknowledge/tagHelp.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/text.h"
#include "document/assistantWords.h"
#include "figures.h"
#include "pages.h"
#include "runningProgram.h"
#include "storage/localFileSystem.h"
#include "surface/editSurface.h"
#include "widgets/nodeTree.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>
#include <benchmark/benchmark.h>

namespace
{
constexpr int Runs = 9;
constexpr double Milli = 1000;
constexpr double Micro = 1e6;
const QByteArray mark = "\xBB";
const QString LongName(30, u'a');

/// An element with a long name for typing into, and 149 others; over 5,000 lines of attributes with their values.
QByteArray htmlFile()
{
    QByteArray lines = mark + LongName.toLatin1() + "\r\n";
    for (int element = 0; element < 149; ++element) {
        lines += mark + "element" + QByteArray::number(element) + "\r\n";
        for (int attribute = 0; attribute < 35; ++attribute) {
            lines += mark + mark + "attribute" + QByteArray::number(attribute) + "=text\r\n";
            if (attribute % 4 == 0)
                lines += mark + mark + mark + "one\r\n" + mark + mark + mark + "another\r\n";
        }
    }
    return lines;
}

QByteArray cssFile()
{
    QByteArray lines;
    for (int property = 0; property < 600; ++property) {
        lines += mark + "property-" + QByteArray::number(property) + "\r\n";
        for (int value = 0; value < 8; ++value)
            lines += mark + mark + "value" + QByteArray::number(value) + "\r\n";
    }
    return lines;
}

void putCodes(const QString &folder)
{
    QDir().mkpath(folder);
    for (const auto &[name, bytes] : {std::pair("Html.tcb", htmlFile()), std::pair("Css.tcb", cssFile())}) {
        QFile file(joinPath(folder, QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", name);
    }
}

/// Both files read, and the tree in a window with its roots open, painted.
double loadTime()
{
    const QTemporaryDir folder;
    putCodes(folder.path());
    LocalFileSystem files;
    return medianTime(Runs, [&] {
        CodeLibraries codes;
        codes.LoadCodeLibraries(files, folder.path());
        NodeTree tree;
        tree.showNodesOf(codes.tree());
        for (const char *root : {"css", "html"})
            tree.expandNode(*tree.find(QLatin1String(root)));
        tree.resize(280, 600);
        tree.show();
        QApplication::processEvents();
    });
}

/// A letter that leaves the list on show, over all elements, which moves with the caret.
double letterTime(RunningProgram &program)
{
    constexpr int Keys = 25;
    TextSurface &edit = program.document()->txtEdit();
    return medianTime(
               Runs,
               [&] {
                   for (int i = 0; i < Keys; ++i)
                       program.press(Qt::Key_A, QStringLiteral("a"));
               },
               [&] {
                   edit.setText(page(63'900, 1));
                   edit.setSelStart(Find(edit.Text(), u"\r\n", edit.textLength() / 2).value_or(1) - 1);
                   edit.setSelText(QStringLiteral("\r\n"));
                   program.press(Qt::Key_Less, QStringLiteral("<"));
                   program.press(Qt::Key_A, QStringLiteral("a"));
                   const auto *list =
                       program.surface()->window()->findChild<QWidget *>(QStringLiteral("picCodeAsssitantBack"));
                   if (!list || !list->isVisible())
                       qFatal("the list is not on show");
               }) /
           Keys;
}

/// Of one call somewhere in a page of 1 MB in which a letter was just typed.
template <typename Read>
double readTime(Read read)
{
    constexpr int Places = 1000;
    EditSurface surface;
    surface.setText(page(1'000'000, 1));
    surface.setSelStart(surface.textLength() / 2);
    surface.setSelText(QStringLiteral("x"));
    return medianTime(Runs,
                      [&] {
                          for (int i = 0; i < Places; ++i) {
                              surface.setSelStart(surface.textLength() / Places * i);
                              benchmark::DoNotOptimize(read(surface));
                          }
                      }) /
           Places;
}

/// A second document beside the first.
double openTime(RunningProgram &program)
{
    return medianTime(
        Runs,
        [&] {
            program.program().context().newBlankDocument();
            RunningProgram::settle();
        },
        [&] {
            const QList<Document *> open = program.program().context().mainWindow->openDocuments();
            if (open.size() > 1)
                open.last()->unload();
            RunningProgram::settle();
        });
}
} // namespace

void codeFigures(Figures &figures)
{
    figures.add(QStringLiteral("reading and showing the codes of HTML and CSS"), loadTime() * Milli,
                QStringLiteral("ms"), 60);
    figures.add(QStringLiteral("tag at the caret, 1 MB"), readTime(&ReadTagAtCaret) * Micro, QStringLiteral("us"), 50);
    figures.add(QStringLiteral("word at the caret, 1 MB"),
                readTime([](const EditSurface &edit) { return WordAtCaret(edit, edit.SelStart() + 1); }) * Micro,
                QStringLiteral("us"), 50);
    RunningProgram program(&putCodes);
    figures.add(QStringLiteral("typed letter with the assistant's list on show"), letterTime(program) * Milli,
                QStringLiteral("ms"), 1.5);
    figures.add(QStringLiteral("a second document, blank, opened"), openTime(program) * Milli, QStringLiteral("ms"));
    RunningProgram bare;
    figures.add(QStringLiteral("the same without codes"), openTime(bare) * Milli, QStringLiteral("ms"));
}
