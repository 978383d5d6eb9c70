// Keys, mouse, clipboard, drag and drop: what the user does without regard to what is under it.
#include "browser/webBrowser.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "drive/commands.h"
#include "drive/controlAdapter.h"
#include "drive/controlParts.h"
#include "drive/events.h"
#include "drive/input.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"
#include "widgets/drawnControl.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace drive
{
namespace
{
Chord chordNamed(Stage &stage, const QString &text)
{
    const auto chord = parseChord(text);
    if (!chord)
        stage.referee.wrong(QStringLiteral("%1 is no key, such as Ctrl+Z, Enter or F1").arg(text));
    return *chord;
}

void key(Stage &stage, const Line &line)
{
    stage.program();
    for (const QString &word : line.words) {
        const Chord chord = chordNamed(stage, word);
        insideEvent([&] { pressKey(stage, chord); });
        settle();
    }
}

void type(Stage &stage, const Line &line)
{
    stage.program();
    typeText(stage, line.words[0]);
}

std::optional<int> wholeNumber(const QString &word)
{
    bool ok = false;
    const int number = word.toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

/// The widget that a target's mouse events go to: the control, or the form's window.
QWidget &widgetOf(Stage &stage, const Target &target)
{
    QObject *object = target.control ? target.control : target.form->window();
    if (const auto *drawn = qobject_cast<DrawnControl *>(object))
        object = drawn->surface();
    auto *widget = qobject_cast<QWidget *>(object);
    if (widget && target.control && takesInput(stage, *target.form))
        turnToPageOf(*widget);
    if (!widget)
        stage.referee.wrong(QStringLiteral("%1 is nothing that a mouse can point at").arg(target.name));
    if (!widget->isVisible())
        stage.referee.fail(QStringLiteral("%1 on show").arg(target.name), QStringLiteral("it hidden"));
    return *widget;
}

/// Where the target's own coordinates begin on that widget. What is drawn out of sight is scrolled into view first.
QPoint cornerOf(const Target &target)
{
    auto *drawn = qobject_cast<DrawnControl *>(target.control);
    if (!drawn)
        return {};
    drawn->reveal();
    return drawn->area().topLeft();
}

std::optional<MouseAct> mouseAct(const QString &name)
{
    static const QHash<QString, MouseAct> acts = {
        {QStringLiteral("press"), MouseAct::Press},
        {QStringLiteral("release"), MouseAct::Release},
        {QStringLiteral("move"), MouseAct::Move},
        {QStringLiteral("click"), MouseAct::Click},
        {QStringLiteral("dblclick"), MouseAct::DoubleClick},
        {QStringLiteral("rclick"), MouseAct::RightClick},
    };
    const auto found = acts.find(name);
    return found == acts.end() ? std::nullopt : std::optional(*found);
}

Qt::KeyboardModifiers modifiersOf(Stage &stage, const QStringList &words)
{
    Qt::KeyboardModifiers modifiers;
    for (const QString &word : words) {
        if (word == QStringLiteral("Ctrl"))
            modifiers |= Qt::ControlModifier;
        else if (word == QStringLiteral("Shift"))
            modifiers |= Qt::ShiftModifier;
        else if (word == QStringLiteral("Alt"))
            modifiers |= Qt::AltModifier;
        else
            stage.referee.wrong(QStringLiteral("%1 is none of Ctrl, Shift and Alt").arg(word));
    }
    return modifiers;
}

void mouse(Stage &stage, const Line &line)
{
    const Target target = findTarget(stage, line.words[0]);
    const auto act = mouseAct(line.words[1]);
    const auto x = wholeNumber(line.words[2]);
    const auto y = wholeNumber(line.words[3]);
    if (!act || !x || !y)
        stage.referee.wrong(QStringLiteral("mouse takes press, release, move, click, dblclick or rclick and a place"));
    const auto modifiers = modifiersOf(stage, line.words.mid(4));
    const QPointer<QWidget> widget = &widgetOf(stage, target);
    // A click on a window that takes no input does nothing, so it does not activate the window either.
    if (*act != MouseAct::Move && *act != MouseAct::Release && takesInput(stage, *target.form))
        activateWindowOf(*target.form);
    settle();
    if (widget && stage.desktop.boxes.onShow().isEmpty()) // a box keeps it off as a real one does
        moveMouse(*widget, *act, cornerOf(target) + QPoint(*x, *y), modifiers);
}

void select(Stage &stage, const Line &line)
{
    auto &document = stage.activeDocument();
    auto *form = dynamic_cast<Form *>(&document);
    requireInput(stage, *form, QStringLiteral("a selection"));
    activate(stage, *form);
    document.txtEdit().SetFocus();
    settle();
    const auto start = wholeNumber(line.words[0]);
    const auto length = wholeNumber(line.words[1]);
    if (!start || !length || *start < 0 || *length < 0)
        stage.referee.wrong(QStringLiteral("a selection is a start and a length, counted from 0"));
    document.txtEdit().setSelStart(*start);
    document.txtEdit().setSelLength(*length);
}

void setClipboard(Stage &, const Line &line)
{
    QGuiApplication::clipboard()->setText(line.words[0]);
}

/// What other programs put beside a picture follows it, each text behind its type.
void setClipboardPicture(Stage &stage, const Line &line)
{
    const QImage picture(line.words[0]);
    if (picture.isNull())
        stage.referee.wrong(QStringLiteral("there is no picture %1").arg(line.words[0]));
    if (line.words.size() % 2 == 0)
        stage.referee.wrong(QStringLiteral("what stands beside a picture is a type and a text, such as text/html <b>"));
    auto *data = new QMimeData;
    data->setImageData(picture);
    for (int i = 1; i + 1 < line.words.size(); i += 2)
        data->setData(line.words[i], line.words[i + 1].toUtf8());
    QGuiApplication::clipboard()->setMimeData(data);
}

QList<QUrl> urlsOf(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

void setClipboardFiles(Stage &, const Line &line)
{
    auto *data = new QMimeData;
    data->setUrls(urlsOf(line.words));
    QGuiApplication::clipboard()->setMimeData(data);
}

/// Where a text stands in the page on show; the script fails if it does not come up in time.
QPoint placeInPage(Stage &stage, WebBrowser &browser, const QString &text)
{
    constexpr int LongestMilliseconds = 5000;
    std::optional<QPoint> place;
    const auto ask = [&] {
        const auto answer = std::make_shared<std::optional<std::optional<QPoint>>>();
        browser.placeOfText(text, [answer](const std::optional<QPoint> &found) { *answer = found; });
        (void)comesTrue([&] { return answer->has_value(); }, LongestMilliseconds);
        place = answer->value_or(std::nullopt);
        return place.has_value();
    };
    if (!comesTrue(ask, LongestMilliseconds))
        stage.referee.fail(QStringLiteral("%1 in the page on show").arg(quoted(text)),
                           QStringLiteral("no such text in it"));
    return *place;
}

void clickPreview(Stage &stage, const Line &line)
{
    const Target target = findTarget(stage, QStringLiteral("doc.brwWebBrowser"));
    auto *browser = qobject_cast<WebBrowser *>(target.control);
    requireInput(stage, *target.form, target.name);
    if (!browser || !browser->isVisible())
        stage.referee.fail(QStringLiteral("the preview on show"), QStringLiteral("it hidden"));
    activate(stage, *target.form);
    settle();
    const QPoint place = placeInPage(stage, *browser, line.words[0]);
    moveMouse(*browser, MouseAct::Move, place, Qt::NoModifier);
    moveMouse(*browser, MouseAct::Click, place, Qt::NoModifier);
}

void resizeWindow(Stage &stage, const Line &line)
{
    Form &form = findForm(stage, line.words[0]);
    const auto width = wholeNumber(line.words[1]);
    const auto height = wholeNumber(line.words[2]);
    if (!width || !height || *width < 1 || *height < 1)
        stage.referee.wrong(QStringLiteral("a size is a width and a height in pixels"));
    requireInput(stage, form, QStringLiteral("another size"));
    QWidget &window = *form.window();
    if (window.isMaximized() || window.isMinimized())
        window.showNormal();
    window.resize(*width, *height);
}

void reveal(Stage &stage, const Line &line)
{
    const Target target = findTarget(stage, line.words[0]);
    if (auto *drawn = qobject_cast<DrawnControl *>(target.control))
        drawn->reveal();
    else
        bringIntoView(widgetOf(stage, target));
}

/// What is dropped stands behind the target's name, or behind the place in it.
void dropAt(Stage &stage, const QString &name, std::optional<QPoint> place, const QStringList &what)
{
    const Target target = findTarget(stage, name);
    QMimeData data;
    if (what.first() == QStringLiteral("text") && what.size() == 2)
        data.setText(what[1]);
    else if (what.first() == QStringLiteral("files") && what.size() > 1)
        data.setUrls(urlsOf(what.mid(1)));
    else
        stage.referee.wrong(QStringLiteral("what is dropped is `text TEXT` or `files PATH...`"));
    dropOn(widgetOf(stage, target), data, place);
}

void drop(Stage &stage, const Line &line)
{
    dropAt(stage, line.words[0], {}, line.words.mid(1));
}

void dropAtPlace(Stage &stage, const Line &line)
{
    const auto x = wholeNumber(line.words[1]);
    const auto y = wholeNumber(line.words[2]);
    if (!x || !y)
        stage.referee.wrong(QStringLiteral("drop-at takes a target, a place in it, and what is dropped"));
    dropAt(stage, line.words[0], QPoint(*x, *y), line.words.mid(3));
}

void clickNamed(Stage &stage, const QString &name)
{
    const Target target = findTarget(stage, name);
    if (!target.control) {
        requireInput(stage, *target.form, target.name);
        activate(stage, *target.form);
        return;
    }
    if (ActionResult result = click(readyControl(stage, target)); !result.done)
        stage.referee.fail(QStringLiteral("%1 to be clicked").arg(name), result.reason);
}

void clickTarget(Stage &stage, const Line &line)
{
    clickNamed(stage, line.words[0]);
}

void during(Stage &stage, const Line &line)
{
    const auto number = wholeNumber(line.words[0]);
    if (number && *number >= 1 && line.words.size() == 1) {
        stage.desktop.yielder.queue({line.number, *number, [&stage, line] { stage.playBlock(line); }});
        return;
    }
    const QString what = line.words.value(1);
    const QString object = line.words.value(2);
    const bool isKey = what == QStringLiteral("key");
    if (!number || *number < 1 || (!isKey && what != QStringLiteral("click")) || object.isEmpty())
        stage.referee.wrong(
            QStringLiteral("during takes a number from 1 on and `key CHORD`, `click TARGET` or commands "
                           "up to `end`"));
    if (isKey)
        chordNamed(stage, object);
    const auto act = [&stage, isKey, object] {
        insideEvent([&] {
            if (isKey)
                pressKey(stage, chordNamed(stage, object));
            else
                clickNamed(stage, object);
        });
        settle();
    };
    stage.desktop.yielder.queue({line.number, *number, act});
}

constexpr Command commands[] = {
    {"key", 1, -1, key},
    {"type", 1, 1, type},
    {"mouse", 4, 7, mouse},
    {"select", 2, 2, select},
    {"drop", 3, -1, drop},
    {"drop-at", 5, -1, dropAtPlace},
    {"clipboard", 1, 1, setClipboard},
    {"clipboard-picture", 1, -1, setClipboardPicture},
    {"clipboard-files", 1, -1, setClipboardFiles},
    {"click", 1, 1, clickTarget},
    {"click-preview", 1, 1, clickPreview},
    {"size", 3, 3, resizeWindow},
    {"reveal", 1, 1, reveal},
    {"during", 1, 3, during},
};
} // namespace

std::span<const Command> inputCommands()
{
    return commands;
}
} // namespace drive
