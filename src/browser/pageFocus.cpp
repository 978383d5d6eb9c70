#include "browser/pageFocus.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

namespace
{
bool isTab(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && !(key.modifiers() & Qt::ControlModifier);
}
} // namespace

PageFocus::PageFocus(QWidget &view) : QObject(&view)
{
    qApp->installEventFilter(this); // which sees what the engine puts into the view later, too
}

bool PageFocus::isHandedOn(Qt::FocusReason reason) const
{
    return (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) && !m_tabPressed;
}

/// A window that goes to the back hands its keyboard on from part to part, as if the user had pressed Tab: only where
/// he has, it is his.
bool PageFocus::isByUser(Qt::FocusReason reason) const
{
    return !isHandedOn(reason) && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                                   reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason);
}

bool PageFocus::isInView(const QObject *watched) const
{
    while (watched && watched != parent())
        watched = watched->parent();
    return watched;
}

bool PageFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        m_tabPressed = isTab(*static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::KeyRelease)
        m_tabPressed = false;
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (isInView(watched))
            focusCame(reason);
        else
            m_handedOn = isHandedOn(reason);
    }
    // A part that the engine is done with does not hand its keyboard on: that would be gone with it.
    if (event->type() == QEvent::Hide && watched != parent() && isInView(watched)) {
        const auto *part = qobject_cast<QWidget *>(watched);
        const QWidget *keyboard = part ? part->window()->focusWidget() : nullptr;
        if (keyboard && (keyboard == part || part->isAncestorOf(keyboard)))
            QMetaObject::invokeMethod(this, &PageFocus::putBack, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void PageFocus::release()
{
    m_held = m_held && m_handedOn;
}

void PageFocus::focusCame(Qt::FocusReason reason)
{
    m_held = m_held || isByUser(reason);
    // From the event loop: whoever moves the focus now is still at it.
    if (!m_held)
        QMetaObject::invokeMethod(this, &PageFocus::taken, Qt::QueuedConnection);
}

/// To what stands in the page now. Meanwhile the keyboard may have gone elsewhere, or the page out of sight.
void PageFocus::putBack()
{
    auto *view = static_cast<QWidget *>(parent());
    const QWidget *keyboard = view->window()->focusWidget();
    const bool isLost = !keyboard || (isInView(keyboard) && !keyboard->isVisible());
    if (isLost && view->isVisible())
        view->setFocus(Qt::OtherFocusReason);
}
