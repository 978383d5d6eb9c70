#include "document/paneDivider.h"

#include "widgets/accessibleRole.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace
{
constexpr int KeyStep = 20; ///< logical pixels
}

PaneDivider::PaneDivider(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("paneDivider"));
    setCursor(Qt::SplitVCursor);
    setAccessibleName(QStringLiteral("Divider of source and preview"));
    setAccessibleRole(*this, QAccessible::Splitter);
}

void PaneDivider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int middle = height() / 2;
    if (hasFocus())
        painter.fillRect(rect(), palette().color(QPalette::Highlight));
    else
        painter.fillRect(0, middle - 1, width(), 2, palette().color(QPalette::Mid));
}

void PaneDivider::mousePressEvent(QMouseEvent *event)
{
    m_grabbed = event->position().toPoint().y() - height() / 2;
}

void PaneDivider::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        Q_EMIT dragged(mapToParent(event->position().toPoint()).y() - m_grabbed);
}

void PaneDivider::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT reset();
}

void PaneDivider::keyPressEvent(QKeyEvent *event)
{
    const int middle = y() + height() / 2;
    if (event->key() == Qt::Key_Up)
        Q_EMIT dragged(middle - KeyStep);
    else if (event->key() == Qt::Key_Down)
        Q_EMIT dragged(middle + KeyStep);
    else if (event->key() == Qt::Key_Home)
        Q_EMIT reset();
    else
        QWidget::keyPressEvent(event);
}
