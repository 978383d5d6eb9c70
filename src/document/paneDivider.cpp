#include "document/paneDivider.h"

#include <QMouseEvent>
#include <QPainter>

PaneDivider::PaneDivider(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("paneDivider"));
    setCursor(Qt::SplitVCursor);
}

void PaneDivider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int middle = height() / 2;
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
