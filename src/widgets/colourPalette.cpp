#include "widgets/colourPalette.h"

#include "common/colourText.h"
#include "widgets/accessibleRole.h"
#include "widgets/arrowStep.h"
#include "widgets/themeColour.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace
{
constexpr int SmallestCell = 12;

/// How far a key moves in a grid with rows of that length; 0 for a key that does not move.
int stepOf(int key, int columns)
{
    const QPoint step = arrowStep(key);
    return step.y() * columns + step.x();
}

bool isPick(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}
} // namespace

ColourPalette::ColourPalette(const QList<ColourValue> &colours, int columns, QWidget *parent)
    : QWidget(parent), m_colours(colours), m_columns(columns)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleRole(*this, QAccessible::ColorChooser);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleDescription(colourText(currentColour()));
}

int ColourPalette::rows() const
{
    return (static_cast<int>(m_colours.size()) + m_columns - 1) / m_columns;
}

QSize ColourPalette::gridOf(int cellSize) const
{
    return {m_columns * cellSize, rows() * cellSize};
}

QSize ColourPalette::sizeHint() const
{
    return gridOf(std::max(SmallestCell, fontMetrics().lineSpacing() * 5 / 4));
}

QSize ColourPalette::minimumSizeHint() const
{
    return gridOf(SmallestCell);
}

QRect ColourPalette::rectOf(int cell) const
{
    const int column = cell % m_columns;
    const int row = cell / m_columns;
    const QPoint start(column * width() / m_columns, row * height() / rows());
    const QPoint end((column + 1) * width() / m_columns, (row + 1) * height() / rows());
    return {start, end - QPoint(1, 1)};
}

int ColourPalette::cellAt(const QPoint &place) const
{
    for (int cell = 0; cell < m_colours.size(); ++cell) {
        if (rectOf(cell).contains(place))
            return cell;
    }
    return -1;
}

void ColourPalette::setCurrentCell(int cell)
{
    if (cell < 0 || cell >= m_colours.size() || cell == m_current)
        return;
    m_current = cell;
    setAccessibleDescription(colourText(currentColour()));
    update();
    Q_EMIT currentChanged();
}

std::optional<ColourValue> ColourPalette::pointedColour() const
{
    return m_pointed < 0 ? std::nullopt : std::optional(m_colours[m_pointed]);
}

void ColourPalette::point(int cell)
{
    if (cell == m_pointed)
        return;
    m_pointed = cell;
    update();
    Q_EMIT pointedChanged();
}

void ColourPalette::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int cell = 0; cell < m_colours.size(); ++cell)
        painter.fillRect(rectOf(cell), shownColour(m_colours[cell], palette()));
    if (m_pointed >= 0)
        drawMark(painter, m_pointed);
    if (hasFocus())
        drawMark(painter, m_current);
}

/// A black frame around a white one, which shows on every colour.
void ColourPalette::drawMark(QPainter &painter, int cell) const
{
    const QRectF frame = QRectF(rectOf(cell)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::black);
    painter.drawRect(frame);
    painter.setPen(Qt::white);
    painter.drawRect(frame.adjusted(1, 1, -1, -1));
}

void ColourPalette::mouseMoveEvent(QMouseEvent *event)
{
    point(cellAt(event->position().toPoint()));
}

void ColourPalette::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? cellAt(event->position().toPoint()) : -1;
}

void ColourPalette::mouseReleaseEvent(QMouseEvent *event)
{
    const int cell = cellAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || cell < 0 || std::exchange(m_pressed, -1) != cell)
        return;
    setCurrentCell(cell);
    Q_EMIT picked();
}

void ColourPalette::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    point(-1);
}

void ColourPalette::keyPressEvent(QKeyEvent *event)
{
    const int step = stepOf(event->key(), m_columns);
    if (step != 0)
        setCurrentCell(m_current + step);
    else if (isPick(event->key()))
        Q_EMIT picked();
    else
        QWidget::keyPressEvent(event);
}

void ColourPalette::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ColourPalette::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
