#include "drive/input.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "drive/controlAdapter.h"
#include "drive/controlParts.h"
#include "drive/events.h"
#include "drive/realInput.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"
#include "frame/application.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace drive
{
namespace
{
constexpr int ActivationMilliseconds = 2000; // a real window manager answers in its own time

/// Delivers an event as one that comes from the desktop, without touching what the desktop itself still has queued: the
/// windows that its handlers show are activated later, as they are for a user.
bool deliver(QWindow *window, QInputEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    return QCoreApplication::instance()->notify(window, &event);
}

QWindow *handleOf(const QWidget &widget)
{
    return widget.window()->windowHandle();
}

QWindow *windowWithKeyboard()
{
    if (const QWidget *popup = QApplication::activePopupWidget())
        return handleOf(*popup);
    return QGuiApplication::focusWindow();
}

void sendKey(const QPointer<QWindow> &window, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers,
             const QString &text)
{
    if (!window) // the key before has closed it
        return;
    if (type == QEvent::KeyPress && qt_sendShortcutOverrideEvent(window, 0, key, modifiers, text))
        return;
    QKeyEvent event(type, key, modifiers, text);
    deliver(window, event);
}

struct ModifierKey {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
};
constexpr ModifierKey modifierKeys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

void sendMouse(const QPointer<QWidget> &widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers)
{
    QWindow *window = widget ? handleOf(*widget) : nullptr;
    if (!window || isBlocked(*widget))
        return;
    const QPoint inWindow = widget->mapTo(widget->window(), at);
    QMouseEvent event(type, inWindow, widget->mapToGlobal(at), button, held, modifiers);
    deliver(window, event);
}

/// A button opens its menu in a loop of its own, which ends with the menu, and the script would have to wait for that.
/// While there is one of these, such a loop is ended, and at its end the menu is on show without one.
class MenuOfAButton
{
public:
    MenuOfAButton()
    {
        QObject::connect(&m_inLoop, &QTimer::timeout, [this] {
            if (QMenu *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                m_menu = menu;
                m_place = menu->pos();
                menu->hide();
            }
        });
        if (!QApplication::activePopupWidget())
            m_inLoop.start(0);
    }
    ~MenuOfAButton()
    {
        if (m_menu)
            m_menu->popup(m_place);
    }
    MenuOfAButton(const MenuOfAButton &) = delete;
    MenuOfAButton &operator=(const MenuOfAButton &) = delete;

private:
    QTimer m_inLoop; // ticks only where events are taken while the press is being dealt with
    QPointer<QMenu> m_menu;
    QPoint m_place;
};

void press(const QPointer<QWidget> &widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
           Qt::KeyboardModifiers modifiers)
{
    const MenuOfAButton menu;
    sendMouse(widget, type, at, button, button, modifiers);
}

void release(const QPointer<QWidget> &widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

bool isOfMainWindow(Form &form)
{
    return form.Name() == QStringLiteral("frmMdi") || form.MDIChild();
}
} // namespace

bool isBlocked(const QWidget &widget)
{
    const QWindow *modal = QGuiApplication::modalWindow();
    for (const QWindow *window = handleOf(widget); modal && window; window = window->transientParent())
        if (window == modal)
            return false;
    return modal != nullptr && widget.window()->windowType() != Qt::Popup;
}

void requireInput(Stage &stage, Form &form, const QString &what)
{
    const auto fail = [&](const QString &expected, const QString &got) {
        stage.referee.fail(QStringLiteral("%1 for %2").arg(expected, what), got);
    };
    if (!form.Visible())
        fail(QStringLiteral("%1 on show").arg(form.Name()), QStringLiteral("it hidden or not loaded"));
    if (const QString box = stage.desktop.boxes.onShow(); !box.isEmpty())
        fail(QStringLiteral("%1 taking input").arg(form.Name()), QStringLiteral("the box %1 over it").arg(quoted(box)));
    if (isBlocked(*form.window()))
        fail(QStringLiteral("%1 taking input").arg(form.Name()), QStringLiteral("a modal box over it"));
    if (isOfMainWindow(form) && !stage.program().context().mainWindow->Enabled())
        fail(QStringLiteral("frmMdi enabled"), QStringLiteral("it disabled"));
}

QObject &readyControl(Stage &stage, const Target &target)
{
    requireInput(stage, *target.form, target.name);
    if (!target.control)
        stage.referee.wrong(QStringLiteral("%1 is a form, a control is needed").arg(target.name));
    const QPointer<QObject> turnedTo = target.control;
    turnToPageOf(*target.control);
    if (!turnedTo)
        stage.referee.fail(QStringLiteral("%1 to stay when its page comes to the front").arg(target.name),
                           QStringLiteral("it gone"));
    if (const ActionResult state = usable(*target.control); !state.done)
        stage.referee.fail(QStringLiteral("%1 enabled and on show").arg(target.name), state.reason);
    const QPointer<QObject> control = target.control;
    activate(stage, *target.form);
    settle();
    if (!control)
        stage.referee.fail(QStringLiteral("%1 to stay when its window is activated").arg(target.name),
                           QStringLiteral("it gone"));
    return *control;
}

bool takesInput(Stage &stage, Form &form)
{
    return stage.desktop.boxes.onShow().isEmpty() && !isBlocked(*form.window()) &&
           (!isOfMainWindow(form) || stage.program().context().mainWindow->Enabled());
}

void activateWindowOf(Form &form)
{
    QWidget *top = form.window()->window();
    if (top->isActiveWindow())
        return;
    top->raise();
    top->activateWindow();
    if (!QTest::qWaitForWindowActive(top, ActivationMilliseconds))
        qWarning("%s did not become the active window", qPrintable(form.Name()));
}

void activate(Stage &stage, Form &form)
{
    activateWindowOf(form);
    Document *document = documentOf(form);
    if (document && document != stage.program().context().mainWindow->activeDocument())
        document->activate();
}

/// An accelerator shows its button pressed for a moment before it clicks it; a user sees the click, so wait for it.
void waitForAnimatedClicks()
{
    constexpr int LongestMilliseconds = 1000;
    const auto isPressed = [](const QWidget *widget) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        return button && button->isDown();
    };
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < LongestMilliseconds) {
        const QWidgetList widgets = QApplication::allWidgets();
        if (std::none_of(widgets.begin(), widgets.end(), isPressed))
            return;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

void pressKey(Stage &stage, const Chord &chord)
{
    const QPointer<QWindow> window = windowWithKeyboard();
    if (const QString box = stage.desktop.boxes.onShow(); !box.isEmpty())
        stage.referee.fail(QStringLiteral("a window that takes keys"), QStringLiteral("the box %1").arg(quoted(box)));
    if (!window)
        stage.referee.fail(QStringLiteral("a window that takes keys"), QStringLiteral("none"));
    if (RealInput *input = RealInput::onThisDisplay(); input && input->pressKey(chord))
        return;
    Qt::KeyboardModifiers held;
    for (const ModifierKey &modifier : modifierKeys) {
        if (!chord.modifiers.testFlag(modifier.modifier))
            continue;
        held |= modifier.modifier;
        sendKey(window, QEvent::KeyPress, modifier.key, held, QString());
    }
    sendKey(window, QEvent::KeyPress, chord.key, held, chord.text);
    sendKey(window, QEvent::KeyRelease, chord.key, held, chord.text);
    for (const ModifierKey &modifier : modifierKeys) {
        if (!held.testFlag(modifier.modifier))
            continue;
        held &= ~Qt::KeyboardModifiers(modifier.modifier);
        sendKey(window, QEvent::KeyRelease, modifier.key, held, QString());
    }
    if (chord.modifiers.testFlag(Qt::AltModifier))
        waitForAnimatedClicks();
}

void typeText(Stage &stage, const QString &text)
{
    for (qsizetype at = 0; at < text.size();) {
        const bool pair =
            at + 1 < text.size() && (text[at].isHighSurrogate() || text.mid(at, 2) == QStringLiteral("\r\n"));
        const QString character = text.mid(at, pair ? 2 : 1);
        insideEvent([&] { pressKey(stage, chordOf(character)); });
        settle();
        at += character.size();
    }
}

void moveRealMouse(RealInput &input, const QWidget &target, MouseAct act, QPoint at, Qt::KeyboardModifiers modifiers)
{
    const auto button = act == MouseAct::RightClick ? Qt::RightButton : Qt::LeftButton;
    input.move(target, at);
    input.withKeys(modifiers, [&] {
        for (int clicks = act == MouseAct::DoubleClick ? 2 : 1; clicks > 0 && act != MouseAct::Move; --clicks) {
            if (act != MouseAct::Release)
                input.press(button);
            if (act != MouseAct::Press)
                input.release(button);
        }
    });
}

/// The window in which the mouse was pressed and not let go yet.
QPointer<QWidget> &holdingWindow()
{
    static QPointer<QWidget> window;
    return window;
}

bool isMouseHeld()
{
    return !holdingWindow().isNull();
}

void moveMouse(QWidget &target, MouseAct act, QPoint at, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> holder = holdingWindow();
    if (act == MouseAct::Press)
        holdingWindow() = target.window();
    else if (act == MouseAct::Release)
        holdingWindow().clear();
    if (RealInput *input = RealInput::onThisDisplay()) {
        moveRealMouse(*input, target, act, at, modifiers);
        return;
    }
    const QPointer<QWidget> widget = &target;
    QCursor::setPos(widget->mapToGlobal(at));
    const auto button = act == MouseAct::RightClick ? Qt::RightButton : Qt::LeftButton;
    if (act == MouseAct::Move) {
        const bool dragging = QTestPrivate::qtestMouseButtons.testFlag(Qt::LeftButton);
        sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, dragging ? Qt::LeftButton : Qt::NoButton, modifiers);
        return;
    }
    if (act != MouseAct::Release)
        press(widget, QEvent::MouseButtonPress, at, button, modifiers);
    QTestPrivate::qtestMouseButtons.setFlag(Qt::LeftButton, act == MouseAct::Press);
    if (act == MouseAct::Release && holder) // a window that was pressed is told of the release, wherever it comes
        release(holder, holder->mapFromGlobal(widget->mapToGlobal(at)), button, modifiers);
    else if (act != MouseAct::Press)
        release(widget, at, button, modifiers);
    if (act == MouseAct::DoubleClick) {
        press(widget, QEvent::MouseButtonDblClick, at, button, modifiers);
        release(widget, at, button, modifiers);
    }
}

void dropOn(QWidget &widget, const QMimeData &data, std::optional<QPoint> place)
{
    QWindow *window = handleOf(widget);
    if (!window || isBlocked(widget))
        return;
    const QPoint at = widget.mapTo(widget.window(), place.value_or(widget.rect().center()));
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    if (move.isAccepted()) {
        QDropEvent drop(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &drop);
    } else {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(window, &leave);
    }
}
} // namespace drive
