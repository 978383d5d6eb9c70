#include "browser/pageFocus.h"

#include <QChildEvent>
#include <QFocusEvent>
#include <QWidget>

namespace
{
bool isByUser(Qt::FocusReason reason)
{
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}
} // namespace

PageFocus::PageFocus(QWidget &view) : QObject(&view)
{
    view.installEventFilter(this);
    watchAll();
}

void PageFocus::watchAll()
{
    const auto inner = parent()->findChildren<QWidget *>();
    for (QWidget *widget : inner)
        widget->installEventFilter(this);
}

bool PageFocus::eventFilter(QObject *watched, QEvent *event)
{
    // What is added may bring parts of its own, and is no whole widget yet.
    if (event->type() == QEvent::ChildAdded)
        QMetaObject::invokeMethod(this, &PageFocus::watchAll, Qt::QueuedConnection);
    if (event->type() == QEvent::FocusIn)
        focusCame(static_cast<QFocusEvent *>(event)->reason());
    return QObject::eventFilter(watched, event);
}

void PageFocus::focusCame(Qt::FocusReason reason)
{
    m_held = m_held || isByUser(reason);
    // From the event loop: whoever moves the focus now is still at it.
    if (!m_held)
        QMetaObject::invokeMethod(this, &PageFocus::taken, Qt::QueuedConnection);
}
