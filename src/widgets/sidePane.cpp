#include "widgets/sidePane.h"

#include "widgets/accessibleRole.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace
{
constexpr int SmallestWidth = 120;
constexpr int RoomForDocuments = 200;
constexpr int KeyStep = 20; ///< logical pixels
} // namespace

SidePane::SidePane(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Width of the pane"));
    setAccessibleRole(*this, QAccessible::Splitter);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setSide(Side::Left);
}

void SidePane::setSide(Side side)
{
    m_side = side;
    const bool left = side == Side::Left;
    setContentsMargins(left ? 0 : EdgeWidth, 0, left ? EdgeWidth : 0, 0);
    update();
}

void SidePane::setPaneWidth(int width)
{
    const int most = parentWidget() && window()->isVisible() ? parentWidget()->width() - RoomForDocuments : width;
    m_width = std::max(SmallestWidth, std::min(width, most));
    updateGeometry();
}

QSize SidePane::sizeHint() const
{
    return {m_width, 0};
}

QSize SidePane::minimumSizeHint() const
{
    return {std::min(m_width, SmallestWidth), 0};
}

bool SidePane::isOverEdge(int x) const
{
    return m_side == Side::Left ? x >= width() - EdgeWidth : x < EdgeWidth;
}

void SidePane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void SidePane::paintEvent(QPaintEvent *)
{
    // A hair line tells where the pane ends.
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    const int x = m_side == Side::Left ? width() - 1 : 0;
    painter.drawLine(x, 0, x, height());
    if (hasFocus())
        painter.fillRect(m_side == Side::Left ? width() - EdgeWidth : 0, 0, EdgeWidth, height(),
                         palette().color(QPalette::Highlight));
}

void SidePane::mousePressEvent(QMouseEvent *event)
{
    const int x = event->position().toPoint().x();
    m_dragging = event->button() == Qt::LeftButton && isOverEdge(x);
    m_grabbed = event->globalPosition().toPoint().x();
    m_before = width();
}

void SidePane::mouseMoveEvent(QMouseEvent *event)
{
    setCursor(m_dragging || isOverEdge(event->position().toPoint().x()) ? Qt::SplitHCursor : Qt::ArrowCursor);
    if (!m_dragging)
        return;
    const int moved = event->globalPosition().toPoint().x() - m_grabbed;
    setPaneWidth(m_side == Side::Left ? m_before + moved : m_before - moved);
}

void SidePane::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
}

void SidePane::keyPressEvent(QKeyEvent *event)
{
    const int outwards = m_side == Side::Left ? Qt::Key_Right : Qt::Key_Left;
    const int inwards = m_side == Side::Left ? Qt::Key_Left : Qt::Key_Right;
    if (event->key() == outwards)
        setPaneWidth(width() + KeyStep);
    else if (event->key() == inwards)
        setPaneWidth(width() - KeyStep);
    else
        QWidget::keyPressEvent(event);
}

void SidePane::focusInEvent(QFocusEvent *)
{
    update();
}

void SidePane::focusOutEvent(QFocusEvent *)
{
    update();
}
