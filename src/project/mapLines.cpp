#include "project/mapLines.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <cmath>

namespace
{
constexpr qreal ArrowLength = 8;
constexpr qreal ArrowWidth = 3.2;
constexpr qreal RingSize = 22;
constexpr qreal Margin = ArrowLength; ///< what a line needs beside its way
constexpr qsizetype ManyLines = 400;  ///< beyond which only strong lines have arrows
constexpr qreal FaintLine = 0.1;
constexpr qreal UsualLine = 0.75;

/// Where the line from inside the rectangle's centre leaves it on its way to `from`.
QPointF edgeTowards(const QRectF &rectangle, const QPointF &from)
{
    const QPointF centre = rectangle.center();
    const QPointF way = from - centre;
    const qreal across = way.x() == 0 ? 1e9 : rectangle.width() / 2 / std::abs(way.x());
    const qreal down = way.y() == 0 ? 1e9 : rectangle.height() / 2 / std::abs(way.y());
    return centre + way * std::min({across, down, 1.0});
}

/// Whether all corners of the rectangle lie on one side of the line: then it does not pass through.
bool passesBy(const QLineF &line, const QRectF &rectangle)
{
    const auto side = [&line](const QPointF &corner) {
        return line.dx() * (corner.y() - line.y1()) - line.dy() * (corner.x() - line.x1()) > 0;
    };
    const bool first = side(rectangle.topLeft());
    return side(rectangle.topRight()) == first && side(rectangle.bottomLeft()) == first &&
           side(rectangle.bottomRight()) == first;
}

qreal opacityOf(MapWeight weight)
{
    return weight == MapWeight::Strong ? 1 : weight == MapWeight::Faint ? FaintLine : UsualLine;
}

/// The ring at the upper right corner of a page that links to itself.
QRectF ringAt(const QRectF &box)
{
    return {box.right() - RingSize * 0.65, box.top() - RingSize * 0.6, RingSize, RingSize};
}

void drawArrow(QPainter &painter, const QLineF &way, const QRectF &target)
{
    const QPointF tip = edgeTowards(target, way.p1());
    QLineF back(tip, way.p1());
    if (back.length() < ArrowLength)
        return;
    back.setLength(ArrowLength);
    const QLineF across = back.normalVector();
    const QPointF half = (across.p2() - across.p1()) / ArrowLength * ArrowWidth;
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({tip, back.p2() + half, back.p2() - half}));
    painter.setBrush(Qt::NoBrush);
}
} // namespace

LinesItem::LinesItem(const MapLook &look, Draws which) : m_look(look), m_which(which)
{
    setFlag(ItemUsesExtendedStyleOption); // tells what is exposed
}

void LinesItem::add(const MapLine &line, const QRectF &target)
{
    Line added{.way = QLineF(sceneLength(line.fromCentre.x()), sceneLength(line.fromCentre.y()),
                             sceneLength(line.toCentre.x()), sceneLength(line.toCentre.y())),
               .target = target,
               .bounds = {},
               .colour = shownColour(line.colour),
               .own = line.colour};
    const QRectF place = added.way.isNull() ? ringAt(target) : QRectF(added.way.p1(), added.way.p2()).normalized();
    added.bounds = place.adjusted(-Margin, -Margin, Margin, Margin);
    m_lines.append(added);
    prepareGeometryChange();
    m_bounds |= added.bounds;
}

void LinesItem::clear()
{
    prepareGeometryChange();
    m_lines.clear();
    m_bounds = {};
}

void LinesItem::setWeight(int line, MapWeight weight)
{
    m_lines[line].weight = weight;
    update();
}

void LinesItem::setWeights(MapWeight weight)
{
    for (Line &line : m_lines)
        line.weight = weight;
    update();
}

QColor LinesItem::shownColour(const std::optional<ColourValue> &own) const
{
    return own ? m_look.seen(QColor(redOf(*own), greenOf(*own), blueOf(*own))) : m_look.text;
}

void LinesItem::lookChanged()
{
    for (Line &line : m_lines)
        line.colour = shownColour(line.own);
    update();
}

bool LinesItem::isSeen(const Line &line, const QRectF &exposed) const
{
    return line.bounds.intersects(exposed) && (line.way.isNull() || !passesBy(line.way, exposed));
}

void LinesItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget * /*widget*/)
{
    const QRectF exposed = option->exposedRect.adjusted(-Margin, -Margin, Margin, Margin);
    painter->setBrush(Qt::NoBrush);
    for (const Line &line : m_lines)
        if ((line.weight == MapWeight::Strong) == (m_which == Draws::StrongOnes) && isSeen(line, exposed))
            drawLine(*painter, line);
}

void LinesItem::drawLine(QPainter &painter, const Line &line) const
{
    const bool strong = line.weight == MapWeight::Strong;
    QColor colour = line.colour;
    colour.setAlphaF(static_cast<float>(opacityOf(line.weight)));
    painter.setPen(QPen(colour, strong ? 2.4 : 1.2));
    if (line.way.isNull()) {
        painter.drawEllipse(ringAt(line.target));
        return;
    }
    painter.drawLine(line.way);
    if (strong || m_lines.size() <= ManyLines)
        drawArrow(painter, line.way, line.target);
}
