#include "drive/standingRules.h"

#include "browser/webBrowser.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "drive/events.h"
#include "drive/input.h"
#include "drive/script.h"
#include "drive/stage.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "widgets/tabStrip.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <algorithm>

namespace drive
{
namespace
{
constexpr int SmallestSurface = 30;   ///< logical pixels in height: less is no place to write in
constexpr int RoomForSurface = 120;   ///< the height of a window that has such a place; a lower one was made so
constexpr int Frame = 40;             ///< what a window manager may add around a window
constexpr int SmallestOfWindow = 100; ///< of the main window on the screen: less can't be dragged back

QString told(const QRect &place)
{
    return QStringLiteral("%1 x %2 at %3, %4").arg(place.width()).arg(place.height()).arg(place.x()).arg(place.y());
}

bool arranges(const Line &line)
{
    const QString what = line.words.value(0);
    if (line.command == QStringLiteral("menu"))
        return what.startsWith(QStringLiteral("mnuWin"));
    const auto target = parseTargetName(what);
    const bool atWindow = target && target->isDocument() && target->control.isEmpty();
    return atWindow &&
           QStringList{QStringLiteral("size"), QStringLiteral("mouse"), QStringLiteral("click")}.contains(line.command);
}

bool pointsAtPreview(const Line &line)
{
    static const QStringList commands = {QStringLiteral("focus"), QStringLiteral("mouse"), QStringLiteral("click")};
    if (line.command == QStringLiteral("click-preview"))
        return true;
    if (line.command == QStringLiteral("key")) // the way of the keyboard through all controls
        return line.words.contains(QStringLiteral("Tab")) || line.words.contains(QStringLiteral("Shift+Tab"));
    const QString what = line.words.value(0);
    const bool preview =
        what.endsWith(QStringLiteral(".brwWebBrowser")) || what.endsWith(QStringLiteral(".picViewingPane(1)"));
    return commands.contains(line.command) && preview;
}

QWidget *ancestorPreview(QWidget *widget)
{
    while (widget && !qobject_cast<WebBrowser *>(widget))
        widget = widget->parentWidget();
    return widget;
}

/// Whether the mouse stands over the preview, whatever control the line has named: what lies on top takes the click.
bool isUnderMouse(const QWidget &preview)
{
    return preview.rect().contains(preview.mapFromGlobal(QCursor::pos()));
}

/// Whether the source of the document that the preview belongs to is on show.
bool isSourceShown(const QWidget &preview)
{
    const QWidget *place = &preview;
    while (place && !qobject_cast<const QMdiSubWindow *>(place))
        place = place->parentWidget();
    const auto *source = place ? place->findChild<QWidget *>(QStringLiteral("txtEdit")) : nullptr;
    return source && source->isVisible();
}

/// The rectangle of a widget in the coordinates of one that it lies in.
QRect placeIn(const QWidget &outer, const QWidget &widget)
{
    return {widget.mapTo(&outer, QPoint()), widget.size()};
}

QRect roomOf(const QWidget &window)
{
    return window.screen() ? window.screen()->availableGeometry() : QRect();
}

QMdiSubWindow *windowOf(Document *document)
{
    auto *form = dynamic_cast<Form *>(document);
    return form ? qobject_cast<QMdiSubWindow *>(form->window()) : nullptr;
}
} // namespace

/// The commands that arrange windows are run by keys, too, from an open menu.
void StandingRules::watchArranging(QWidget &mainWindow)
{
    if (m_watched == &mainWindow)
        return;
    m_watched = &mainWindow;
    for (const QAction *action : mainWindow.findChildren<QAction *>())
        if (action->objectName().startsWith(QStringLiteral("mnuWin")))
            QObject::connect(action, &QAction::triggered, &m_onArranging, [this] { m_arranges = true; });
}

void StandingRules::enter(Stage &stage, const Line &line)
{
    Form *mainForm = stage.isRunning() ? stage.program().form(QStringLiteral("frmMdi")) : nullptr;
    if (mainForm && mainForm->window())
        watchArranging(*mainForm->window());
    m_arranges = arranges(line);
    m_dragsDivider = m_dragsDivider || (line.command == QStringLiteral("mouse") &&
                                        line.words.value(0).endsWith(QStringLiteral(".paneDivider")));
    m_pointsAtPreview = pointsAtPreview(line);
    m_usesMouse = line.command == QStringLiteral("mouse");
}

void StandingRules::check(Stage &stage)
{
    Form *mainForm = stage.isRunning() ? stage.program().form(QStringLiteral("frmMdi")) : nullptr;
    if (!mainForm || !mainForm->Visible() || mainForm->window()->isMinimized()) {
        m_filled = false;
        return;
    }
    QMdiSubWindow *window = windowOf(stage.program().context().mainWindow->activeDocument());
    if (window && !window->isMinimized() && window->isVisible()) {
        checkFilling(stage, *window);
        checkDocument(stage, *window);
    } else if (window && !window->isVisible()) {
        stage.referee.fail(QStringLiteral("the active document on show"), QStringLiteral("its window hidden"));
    }
    m_filled = window && window->isMaximized();
    checkTabs(stage, *mainForm->window());
    checkFocus(stage, window);
    checkForms(stage);
}

/// Each document has a tab, and that of the active one is selected, unless another one is being pressed.
void StandingRules::checkTabs(Stage &stage, const QWidget &mainWindow)
{
    const auto *tabs = mainWindow.findChild<const TabStrip *>(QStringLiteral("tabDocSel"));
    const MainWindow &program = *stage.program().context().mainWindow;
    const Document *active = program.activeDocument();
    if (tabs && active && !isMouseHeld() && tabs->selectedKey() != active->DocKeyDescription)
        stage.referee.fail(QStringLiteral("the tab of the active document selected, %1").arg(active->DocKeyDescription),
                           tabs->selectedKey());
    if (tabs && tabs->count() != program.openDocuments().size())
        stage.referee.fail(QStringLiteral("a tab for each of %1 documents").arg(program.openDocuments().size()),
                           QString::number(tabs->count()));
}

void StandingRules::checkFilling(Stage &stage, QMdiSubWindow &window)
{
    const QMdiArea &area = *stage.program().forms().mdiArea();
    const QRect room = area.viewport()->rect();
    if (m_filled && !m_arranges && !window.isMaximized())
        stage.referee.fail(QStringLiteral("the active document filling the area of documents, as the one before did"),
                           QStringLiteral("its window %1 in an area of %2").arg(told(window.geometry()), told(room)));
    if (!window.isMaximized())
        return;
    if (window.geometry() != room)
        stage.referee.fail(QStringLiteral("the maximised document filling the area of documents, %1").arg(told(room)),
                           told(window.geometry()));
    if (area.subWindowList(QMdiArea::StackingOrder).constLast() != &window)
        stage.referee.fail(QStringLiteral("the maximised document in front of the others"),
                           QStringLiteral("another one in front of it"));
}

void StandingRules::checkDocument(Stage &stage, QMdiSubWindow &window)
{
    const auto part = [&](const QString &name) { return window.findChild<QWidget *>(name); };
    const bool source = part(QStringLiteral("picViewingPane(0)"))->isVisible();
    const QWidget *pane = part(source ? QStringLiteral("picViewingPane(0)") : QStringLiteral("picViewingPane(1)"));
    const QWidget *surface = part(source ? QStringLiteral("txtEdit") : QStringLiteral("brwWebBrowser"));
    const QString what = QStringLiteral("%1 of the active document").arg(surface->objectName());
    if (!surface->isVisible())
        stage.referee.fail(what + QStringLiteral(" on show"), QStringLiteral("it hidden"));
    const QRect place = surface->geometry();
    // What the program has to tell of the document stands above its text, nothing beside or below.
    const bool low = place.height() < SmallestSurface && window.height() >= RoomForSurface && !m_dragsDivider;
    if (place.width() != pane->width() || place.bottom() != pane->height() - 1 || low)
        stage.referee.fail(what + QStringLiteral(" filling its pane, %1").arg(told(pane->rect())), told(place));
    const QRect inside = placeIn(window, *surface);
    if (!window.rect().contains(inside))
        stage.referee.fail(what + QStringLiteral(" inside its window, %1").arg(told(window.rect())), told(inside));
}

void StandingRules::checkFocus(Stage &stage, QMdiSubWindow *window)
{
    QWidget *focused = QApplication::focusWidget();
    Form &mainForm = *stage.program().form(QStringLiteral("frmMdi"));
    const bool writes = window && !window->isMinimized() && mainForm.window()->isActiveWindow() &&
                        stage.program().context().mainWindow->Enabled();
    if (!focused) {
        if (writes)
            stage.referee.fail(QStringLiteral("the keyboard in a control of the main window"),
                               QStringLiteral("it nowhere"));
        return;
    }
    if (!focused->isVisible())
        stage.referee.fail(QStringLiteral("the keyboard in a control that is on show"),
                           QStringLiteral("it in %1, which is hidden").arg(focused->objectName()));
    for (QWidget *place = focused; place; place = place->parentWidget())
        if (qobject_cast<QMdiSubWindow *>(place) && place != window)
            stage.referee.fail(QStringLiteral("the keyboard in the active document"),
                               QStringLiteral("it in the document %1").arg(place->windowTitle()));
    checkPreviewFocus(stage, *focused);
}

void StandingRules::checkPreviewFocus(Stage &stage, QWidget &focused)
{
    QWidget *preview = ancestorPreview(&focused);
    if (!preview || m_previews.contains(preview))
        return;
    // In the place of the source, the preview is what the keyboard goes on to.
    const bool pointsAtIt = m_pointsAtPreview || (m_usesMouse && isUnderMouse(*preview));
    if (!pointsAtIt && isSourceShown(*preview)) {
        // The engine asks for the keyboard from a process of its own, at any time; the program refuses in the next turn
        // of the event loop.
        settle();
        if (ancestorPreview(QApplication::focusWidget()) != preview)
            return;
        stage.referee.fail(QStringLiteral("the keyboard outside the preview, where no command has put it"),
                           QStringLiteral("it in the preview"));
    }
    m_previews.append(preview);
}

void StandingRules::checkForms(Stage &stage)
{
    const auto loaded = stage.program().forms().loaded();
    for (const Form *form : loaded) {
        if (!form->Visible() || !form->window()->isWindow() || form->window()->isMinimized())
            continue;
        const QRect place = form->window()->frameGeometry();
        const QRect room = roomOf(*form->window());
        const QRect seen = place & room;
        const bool isMain = form->Name() == QStringLiteral("frmMdi");
        const bool reachable = seen.width() >= SmallestOfWindow && seen.height() >= SmallestOfWindow;
        // A few pixels of an edge may be lost to a frame; more than a quarter is a form that is not there.
        const auto isOff = [](int shown, int whole, int there) { return shown * 4 < std::min(whole, there) * 3; };
        const bool isLost = isOff(seen.width(), place.width(), room.width()) ||
                            isOff(seen.height(), place.height(), room.height()) || place.top() < room.top() - Frame;
        if (isMain ? !reachable || place.top() < room.top() - Frame : isLost)
            stage.referee.fail(QStringLiteral("%1 on the screen, %2").arg(form->Name(), told(room)), told(place));
    }
}
} // namespace drive
