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
    const auto inner = view.findChildren<QWidget *>();
    for (QWidget *widget : inner)
        widget->installEventFilter(this);
}

bool PageFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded && static_cast<QChildEvent *>(event)->child()->isWidgetType())
        static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
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
