#include "forms/inputGate.h"

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>

namespace
{
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        return true;
    default:
        return false;
    }
}

/// The widget that an object belongs to: itself, or the nearest one above an action or a shortcut.
const QWidget *widgetOf(const QObject *object)
{
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget *>(object);
}
} // namespace

InputGate::InputGate(QWidget &window, std::function<void()> refused)
    : QObject(&window), m_window(&window), m_refused(std::move(refused))
{
}

void InputGate::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    if (open)
        QCoreApplication::instance()->removeEventFilter(this);
    else
        QCoreApplication::instance()->installEventFilter(this);
}

bool InputGate::eventFilter(QObject *watched, QEvent *event)
{
    if (!isInput(event->type()) || !guards(watched))
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove || event->type() == QEvent::Drop)
        event->ignore();
    if (event->type() == QEvent::MouseButtonPress && m_refused)
        m_refused();
    return true;
}

bool InputGate::guards(const QObject *object) const
{
    if (!m_window)
        return false;
    // The window's own handle is held too: a click moves the focus before any widget sees the event.
    if (object->isWindowType())
        return object == m_window->windowHandle();
    const QWidget *widget = widgetOf(object);
    while (widget) {
        const QWidget *top = widget->window();
        if (top == m_window)
            return true;
        if (top->windowType() != Qt::Popup)
            return false;
        widget = top->parentWidget();
    }
    return false;
}
