// Looking at forms, controls and documents.
#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "desktop/desktopHelpViewer.h"
#include "drive/commands.h"
#include "drive/patterns.h"
#include "drive/properties.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"
#include "frame/application.h"
#include "help/helpWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPixmap>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>
#include <cstdio>

namespace drive
{
namespace
{
void tell(const QString &text)
{
    const QByteArray line = text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fflush(stdout);
}

void expectProperty(Stage &stage, const Line &line)
{
    const QString got = readTarget(stage, findTarget(stage, line.words[0]), line.words[1]);
    if (got != line.words[2])
        stage.referee.fail(QStringLiteral("%1 %2 %3").arg(line.words[0], line.words[1], quoted(line.words[2])),
                           quotedAgainst(line.words[2], got));
}

void expectMatch(Stage &stage, const Line &line)
{
    const QRegularExpression pattern = wholePattern(stage, line.words[2]);
    const QString got = readTarget(stage, findTarget(stage, line.words[0]), line.words[1]);
    if (!pattern.match(got).hasMatch())
        stage.referee.fail(QStringLiteral("%1 %2 to match %3").arg(line.words[0], line.words[1], line.words[2]),
                           quoted(got));
}

void expectText(Stage &stage, const Line &line)
{
    const QString got = stage.activeDocument().txtEdit().Text();
    if (got != line.words[0])
        stage.referee.fail(QStringLiteral("the text %1").arg(quoted(line.words[0])), quotedAgainst(line.words[0], got));
}

qsizetype positionOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const qsizetype position = word.toLongLong(&ok);
    if (!ok || position < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number from 0 on").arg(word));
    return position;
}

void expectCaret(Stage &stage, const Line &line)
{
    const qsizetype start = positionOf(stage, line.words[0]);
    const qsizetype length = positionOf(stage, line.words[1]);
    const TextSurface &surface = stage.activeDocument().txtEdit();
    const auto told = [](qsizetype from, qsizetype count) {
        return QStringLiteral("a selection from %1 of %2").arg(from).arg(count);
    };
    if (surface.SelStart() != start || surface.SelLength() != length)
        stage.referee.fail(told(start, length), told(surface.SelStart(), surface.SelLength()));
}

/// The looks of a range as `expect-colour` says them.
struct Looks {
    ColourValue colour = WindowTextColour;
    std::optional<bool> bold;
    bool underline = false;
};

Looks looksOf(Stage &stage, const QStringList &words)
{
    Looks looks;
    const auto colour = parseTextColour(words[0]);
    if (!colour)
        stage.referee.wrong(QStringLiteral("%1 is neither a decimal colour nor `default`").arg(words[0]));
    looks.colour = *colour;
    for (const QString &word : words.mid(1)) {
        if (word == QStringLiteral("underline"))
            looks.underline = true;
        else if (word == QStringLiteral("bold") || word == QStringLiteral("plain"))
            looks.bold = word == QStringLiteral("bold");
        else
            stage.referee.wrong(QStringLiteral("%1 is none of bold, plain and underline").arg(word));
    }
    return looks;
}

QString told(const TextFormat &format)
{
    const QString colour = format.colour ? textColour(*format.colour) : QStringLiteral("several colours");
    const QString weight = !format.bold ? QStringLiteral("bold and plain")
                                        : (*format.bold ? QStringLiteral("bold") : QStringLiteral("plain"));
    const QString line = !format.underline
                             ? QStringLiteral("underlined in part")
                             : (*format.underline ? QStringLiteral("underline") : QStringLiteral("no underline"));
    return QStringLiteral("%1, %2, %3").arg(colour, weight, line);
}

bool fits(const TextFormat &format, const Looks &looks)
{
    return format.colour == looks.colour && (!looks.bold || format.bold == looks.bold) &&
           format.underline == looks.underline;
}

void expectColour(Stage &stage, const Line &line)
{
    const qsizetype start = positionOf(stage, line.words[0]);
    const qsizetype length = positionOf(stage, line.words[1]);
    const Looks looks = looksOf(stage, line.words.mid(2));
    const TextSurface &surface = stage.activeDocument().txtEdit();
    if (length < 1 || start + length > surface.textLength())
        stage.referee.fail(QStringLiteral("characters from %1 to %2").arg(start).arg(start + length),
                           QStringLiteral("a text of %1").arg(surface.textLength()));
    for (qsizetype at = start; at < start + length; ++at) {
        const TextFormat format = surface.formatOf(at, 1);
        if (!fits(format, looks))
            stage.referee.fail(QStringLiteral("character %1 in %2").arg(at).arg(line.words.mid(2).join(u' ')),
                               told(format));
    }
}

void expectStatus(Stage &stage, const Line &line)
{
    const MainWindow *window = stage.program().context().mainWindow;
    const QString got = window ? window->statusText() : QString();
    if (got != line.words[0])
        stage.referee.fail(QStringLiteral("the status %1").arg(quoted(line.words[0])), quoted(got));
}

void compareLists(Stage &stage, const QString &what, const QStringList &expected, const QStringList &got)
{
    if (got != expected)
        stage.referee.fail(QStringLiteral("%1 %2").arg(what, quotedList(expected)), quotedList(got));
}

void expectDocs(Stage &stage, const Line &line)
{
    QStringList captions;
    if (MainWindow *window = stage.program().context().mainWindow)
        for (const Document *document : window->openDocuments())
            captions.append(document->documentCaption());
    compareLists(stage, QStringLiteral("the documents"), line.words, captions);
}

void expectTabs(Stage &stage, const Line &line)
{
    const Target tabs = findTarget(stage, QStringLiteral("frmMdi.tabDocSel"));
    QStringList captions;
    const int count = readTarget(stage, tabs, QStringLiteral("TabCount")).toInt();
    for (int i = 0; i < count; ++i)
        captions.append(readTarget(stage, tabs, QStringLiteral("Tab(%1)").arg(i)));
    compareLists(stage, QStringLiteral("the tabs"), line.words, captions);
}

void expectForms(Stage &stage, const Line &line)
{
    QStringList shown;
    const auto loaded = stage.program().forms().loaded();
    for (const Form *form : loaded)
        if (form->Visible() && !form->MDIChild() && form->Name() != QStringLiteral("frmMdi"))
            shown.append(form->Name());
    QStringList expected = line.words;
    expected.sort();
    shown.sort();
    compareLists(stage, QStringLiteral("the forms on show"), expected, shown);
}

void print(Stage &stage, const Line &line)
{
    tell(readTarget(stage, findTarget(stage, line.words[0]), line.words[1]));
}

QWidget *windowOnTop()
{
    for (QWidget *window :
         {QApplication::activePopupWidget(), QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (window)
            return window->window();
    return nullptr;
}

Form *formOnTop(Stage &stage)
{
    const QWidget *top = windowOnTop();
    const auto loaded = stage.program().forms().loaded();
    for (Form *form : loaded)
        if (form->window() && form->window() == top)
            return form;
    return stage.program().form(QStringLiteral("frmMdi"));
}

void dump(Stage &stage, const Line &line)
{
    Form *form = line.words.isEmpty() ? formOnTop(stage) : &findForm(stage, line.words[0]);
    if (form)
        tell(dumpForm(stage, *form).join(u'\n'));
}

void savePicture(Stage &stage, QWidget &window, const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (!window.grab().save(path, "PNG"))
        stage.referee.fail(QStringLiteral("a picture in %1").arg(path),
                           QStringLiteral("a file that cannot be written"));
}

void shot(Stage &stage, const Line &line)
{
    stage.program();
    QWidget *window = windowOnTop();
    if (!window)
        stage.referee.fail(QStringLiteral("a window on top"), QStringLiteral("none"));
    savePicture(stage, *window, line.words[0]);
}

// The help's calls are only recorded, so that its window comes up for the picture alone. What is searched for is typed.
void shotHelp(Stage &stage, const Line &line)
{
    DesktopHelpViewer viewer({joinPath(stage.world.app(), QStringLiteral("help"))}, stage.desktop.files,
                             stage.desktop.launcher);
    viewer.show(line.words[1]);
    const QString tab = line.words.value(2);
    if (tab == QLatin1String("index"))
        viewer.index();
    else if (tab == QLatin1String("search"))
        QTest::keyClicks(viewer.window()->findChild<QLineEdit *>(QStringLiteral("helpSearch")), line.words.value(3));
    viewer.window()->resize(980, 680); // whatever the screen of the test is like
    QCoreApplication::processEvents();
    savePicture(stage, *viewer.window(), line.words[0]);
}

constexpr Command commands[] = {
    {"expect", 3, 3, expectProperty},
    {"expect-match", 3, 3, expectMatch},
    {"expect-text", 1, 1, expectText},
    {"expect-caret", 2, 2, expectCaret},
    {"expect-colour", 3, 5, expectColour},
    {"expect-status", 1, 1, expectStatus},
    {"expect-docs", 0, -1, expectDocs},
    {"expect-tabs", 0, -1, expectTabs},
    {"expect-forms", 0, -1, expectForms},
    {"print", 2, 2, print},
    {"dump", 0, 1, dump},
    {"shot", 1, 1, shot},
    {"shot-help", 2, 4, shotHelp},
};
} // namespace

std::span<const Command> lookCommands()
{
    return commands;
}
} // namespace drive
