#include "insertion/boardFigure.h"

#include "widgets/themeColour.h"

#include <QPainter>

namespace
{
constexpr int LongestPiece = 64; // of a line: what is drawn anew stays close to it
constexpr int Margin = 2;        // for the pen, and for corners that fall between pixels

QRect around(const QPointF &from, const QPointF &to)
{
    return QRectF(from, to).normalized().toAlignedRect().adjusted(-Margin, -Margin, Margin, Margin);
}

QRegion alongLine(const QLineF &line)
{
    const int pieces = 1 + static_cast<int>(line.length()) / LongestPiece;
    QRegion region;
    for (int piece = 0; piece < pieces; ++piece)
        region += around(line.pointAt(static_cast<double>(piece) / pieces),
                         line.pointAt(static_cast<double>(piece + 1) / pieces));
    return region;
}

/// The frame between the oval's own box and the largest box that lies within it.
QRegion alongOval(const QRectF &box)
{
    constexpr double inner = 0.70710678; // the sine of half a right angle
    const QSizeF size = box.size() * inner;
    const QRectF within(box.center() - QPointF(size.width() / 2, size.height() / 2), size);
    const QRegion whole = around(box.topLeft(), box.bottomRight());
    return whole - within.toAlignedRect().adjusted(Margin, Margin, -Margin, -Margin);
}

QLineF scaled(const QLineF &line, int zoom)
{
    return {line.p1() * zoom, line.p2() * zoom};
}
} // namespace

BoardFigure::BoardFigure(const QString &name, Kind kind, ColourValue colour, QObject *parent)
    : QObject(parent), m_kind(kind), m_colour(colour)
{
    setObjectName(name);
}

void BoardFigure::place(const QLineF &place, bool visible)
{
    if (place == m_place && visible == m_visible)
        return;
    Q_EMIT covers();
    m_place = place;
    m_visible = visible;
    Q_EMIT covers();
}

QRegion BoardFigure::region(int zoom) const
{
    if (!m_visible)
        return {};
    const QLineF line = scaled(m_place, zoom);
    return m_kind == Kind::Line ? alongLine(line) : alongOval(QRectF(line.p1(), line.p2()).normalized());
}

void BoardFigure::draw(QPainter &painter, int zoom) const
{
    if (!m_visible)
        return;
    const QLine line = scaled(m_place, zoom).toLine();
    painter.setPen(shownColour(m_colour, {}));
    painter.setBrush({});
    if (m_kind == Kind::Line)
        painter.drawLine(line);
    else
        painter.drawEllipse(QRect(line.p1(), line.p2()).normalized());
}
