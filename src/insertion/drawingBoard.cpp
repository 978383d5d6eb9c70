#include "insertion/drawingBoard.h"

#include "widgets/accessibleRole.h"
#include "widgets/arrowStep.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace
{
constexpr QSize BlankSize(480, 320);
constexpr int CrossArm = 8;
constexpr int FastStep = 10;
constexpr int CursorSize = 31;

/// A cross with a light edge, so that it is seen on every picture; its middle is left free for the pixel it points at.
QCursor crossCursor()
{
    QPixmap shape(CursorSize, CursorSize);
    shape.fill(Qt::transparent);
    const int middle = CursorSize / 2;
    QPainter painter(&shape);
    for (const auto &[colour, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(middle, 1, middle, middle - 3);
        painter.drawLine(middle, middle + 3, middle, CursorSize - 2);
        painter.drawLine(1, middle, middle - 3, middle);
        painter.drawLine(middle + 3, middle, CursorSize - 2, middle);
    }
    painter.end();
    return QCursor(shape, middle, middle);
}

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}
} // namespace

DrawingBoard::DrawingBoard(QWidget *parent) : QWidget(parent), m_size(BlankSize)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleRole(*this, QAccessible::Canvas);
    setAttribute(Qt::WA_OpaquePaintEvent); // the picture or its white ground covers everything
    setCursor(crossCursor());
    sizeToPicture();
    m_cross = QPoint(m_size.width() / 2, m_size.height() / 2);
}

void DrawingBoard::setPicture(const QPixmap &picture, const QSize &size)
{
    m_picture = picture;
    if (!picture.isNull() && !size.isEmpty()) {
        m_size = size;
        m_cross = QPoint(size.width() / 2, size.height() / 2);
        sizeToPicture();
    }
    update();
}

void DrawingBoard::setZoom(int zoom)
{
    m_zoom = std::clamp(zoom, 1, LargestZoom);
    sizeToPicture();
    update();
}

void DrawingBoard::sizeToPicture()
{
    setFixedSize((m_size * m_zoom).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

void DrawingBoard::setMarks(const Marks &marks)
{
    m_marks = marks;
    update();
}

void DrawingBoard::addFigure(BoardFigure *figure)
{
    m_figures.append(figure);
    connect(figure, &BoardFigure::covers, this, [this, figure] { update(figure->region(m_zoom)); });
}

QPointF DrawingBoard::within(const QPointF &point) const
{
    return {std::clamp(point.x(), 0.0, m_size.width() - 1.0), std::clamp(point.y(), 0.0, m_size.height() - 1.0)};
}

QPointF DrawingBoard::pictureAt(const QPointF &at) const
{
    return within(at / m_zoom);
}

void DrawingBoard::mousePressEvent(QMouseEvent *event)
{
    showCross(false);
    m_held = true;
    Q_EMIT pressed(pictureAt(event->position()));
}

void DrawingBoard::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT moved(pictureAt(event->position()), m_held && event->buttons() != Qt::NoButton);
}

void DrawingBoard::mouseReleaseEvent(QMouseEvent *event)
{
    m_cross = pictureAt(event->position()).toPoint();
    if (std::exchange(m_held, false))
        Q_EMIT released(pictureAt(event->position()));
}

/// The second press of a double click draws nothing: a corner that is set twice would be two corners.
void DrawingBoard::mouseDoubleClickEvent(QMouseEvent *) {}

/// A fine wheel turns by less than a step at a time: what is too little for one counts for the next.
void DrawingBoard::wheelEvent(QWheelEvent *event)
{
    constexpr int notch = 120;
    const bool zooms = event->modifiers() & Qt::ControlModifier;
    const int unit = zooms ? notch : notch / 3;
    m_turned += event->angleDelta();
    const QPoint steps(m_turned.x() / unit, m_turned.y() / unit);
    m_turned -= steps * unit;
    event->accept();
    if (!zooms) {
        Q_EMIT scrolled(-steps);
    } else if (steps.y() != 0) {
        m_cross = pictureAt(event->position()).toPoint(); // what is pointed at is to stay in view
        Q_EMIT zoomAsked(std::clamp(m_zoom + steps.y(), 1, LargestZoom));
    }
}

/// Enter and the arrows draw here; before the dialog's default button and the way to the next control have them.
bool DrawingBoard::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (isEnter(key) || key == Qt::Key_Backspace || !arrowStep(key).isNull()) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void DrawingBoard::keyPressEvent(QKeyEvent *event)
{
    if (m_held || moveCrossBy(event->key(), event->modifiers()) || askForZoom(event->key()))
        return;
    if (isEnter(event->key())) {
        showCross(true);
        Q_EMIT cornerSet(m_cross);
    } else if (event->key() == Qt::Key_Backspace) {
        Q_EMIT cornerTakenBack();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool DrawingBoard::moveCrossBy(int key, Qt::KeyboardModifiers modifiers)
{
    const QPoint step = arrowStep(key);
    if (step.isNull())
        return false;
    moveCross(m_cross + step * (modifiers & Qt::ControlModifier ? FastStep : 1));
    return true;
}

bool DrawingBoard::askForZoom(int key)
{
    const int change = key == Qt::Key_Plus ? 1 : key == Qt::Key_Minus ? -1 : 0;
    if (change != 0)
        Q_EMIT zoomAsked(std::clamp(m_zoom + change, 1, LargestZoom));
    return change != 0;
}

void DrawingBoard::moveCross(const QPoint &to)
{
    update(crossRect());
    m_cross = within(to).toPoint();
    showCross(true);
    Q_EMIT crossMoved(m_cross);
}

void DrawingBoard::showCross(bool shown)
{
    m_crossShown = shown;
    update(crossRect());
}

QRect DrawingBoard::crossRect() const
{
    const QPoint middle = m_cross * m_zoom;
    return QRect(middle, middle).adjusted(-CrossArm - 2, -CrossArm - 2, CrossArm + 2, CrossArm + 2);
}

void DrawingBoard::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (isByKeyboard(event->reason()))
        showCross(true);
    update();
}

void DrawingBoard::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    showCross(false);
    update();
}

void DrawingBoard::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    for (const QRect &part : event->region())
        drawPicture(painter, part);
    painter.setClipRegion(event->region());
    if (m_marks)
        m_marks(painter, m_zoom);
    for (const BoardFigure *figure : std::as_const(m_figures))
        figure->draw(painter, m_zoom);
    if (m_crossShown)
        drawCross(painter);
    if (!isEnabled())
        painter.fillRect(event->rect(), QColor(128, 128, 128, 96));
}

/// Only the part that is to be drawn: at the largest zoom a photograph has more pixels than a screen by far.
void DrawingBoard::drawPicture(QPainter &painter, const QRect &part) const
{
    painter.fillRect(part, Qt::white);
    if (m_picture.isNull())
        return;
    const double across = static_cast<double>(m_picture.width()) / width();
    const double down = static_cast<double>(m_picture.height()) / height();
    painter.drawPixmap(QRectF(part), m_picture,
                       QRectF(part.x() * across, part.y() * down, part.width() * across, part.height() * down));
}

void DrawingBoard::drawCross(QPainter &painter) const
{
    const QPoint middle = m_cross * m_zoom;
    for (const auto &[colour, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(middle - QPoint(CrossArm, 0), middle + QPoint(CrossArm, 0));
        painter.drawLine(middle - QPoint(0, CrossArm), middle + QPoint(0, CrossArm));
    }
}
