#include "project/mapItems.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>
#include <array>

namespace
{
constexpr qreal Corner = 5;
constexpr qreal Padding = 6;
constexpr qreal NameTop = 2;
constexpr qreal NameHeight = 16;
constexpr qreal FolderHeight = 13;
constexpr int NamePixels = 12;
constexpr int FolderPixels = 10;
constexpr qreal Halo = 3; ///< what a box's outline needs beyond its place
constexpr qreal ArrowLength = 8;
constexpr qreal ArrowWidth = 3.2;
constexpr qreal RingSize = 22;
constexpr qreal LongestText = 1200; ///< beyond which even a box that takes its text's size cuts it
constexpr qreal TextSeen = 0.4;     ///< scale below which the folder is not drawn, and below whose half the name is not
constexpr qreal FaintBox = 0.38;
constexpr qreal FaintLine = 0.1;
constexpr qreal UsualLine = 0.75;

QFont fontOf(int pixels)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}

/// As much of a text as a box can show at all, without breaks: a link that is not closed can be as long as its page.
QString inOneLine(QString text)
{
    constexpr qsizetype Most = 300;
    text.truncate(Most);
    for (QChar &c : text)
        if (c < u' ')
            c = u' ';
    return text;
}

QString cut(const QString &text, int pixels, qreal width)
{
    return QFontMetricsF(fontOf(pixels)).elidedText(text, Qt::ElideMiddle, width);
}

qreal widthOf(const QString &text, int pixels)
{
    return std::min(QFontMetricsF(fontOf(pixels)).horizontalAdvance(text), LongestText);
}

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

qreal lineOpacity(MapWeight weight)
{
    return weight == MapWeight::Strong ? 1 : weight == MapWeight::Faint ? FaintLine : UsualLine;
}
} // namespace

QRectF scenePlace(const QRect &place)
{
    return {sceneLength(place.x()), sceneLength(place.y()), sceneLength(place.width()), sceneLength(place.height())};
}

BoxItem::BoxItem(const MapBox &box, const MapLook &look)
    : m_look(look),
      m_name(inOneLine(box.name)),
      m_folder(u'[' + inOneLine(box.folder) + u']'),
      m_colour(redOf(box.colour), greenOf(box.colour), blueOf(box.colour)),
      m_usualPlace(scenePlace(box.place)),
      m_place(m_usualPlace)
{
    m_shortName = cut(m_name, NamePixels, m_usualPlace.width() - 2 * Padding);
    m_shortFolder = cut(m_folder, FolderPixels, m_usualPlace.width() - 2 * Padding);
    raise();
}

/// Boxes lie over all lines, and over each other by how much they stand out.
void BoxItem::raise()
{
    setZValue(m_autoSize ? 3 : m_weight == MapWeight::Strong ? 2 : 1);
}

void BoxItem::setAutoSize(bool on)
{
    if (on == m_autoSize)
        return;
    prepareGeometryChange();
    m_autoSize = on;
    m_place = m_usualPlace;
    if (on) {
        const qreal text = std::max(widthOf(m_name, NamePixels), widthOf(m_folder, FolderPixels));
        // An even number of pixels keeps the centre where it is, to the pixel.
        const qreal width = std::max(m_usualPlace.width(), 2 * std::ceil((text + 2 * Padding) / 2) + 2);
        m_place.setWidth(width);
        m_place.moveCenter(m_usualPlace.center());
    }
    raise();
}

void BoxItem::setWeight(MapWeight weight)
{
    m_weight = weight;
    setOpacity(weight == MapWeight::Faint ? FaintBox : 1);
    raise();
}

void BoxItem::setChosen(bool chosen)
{
    m_chosen = chosen;
    update();
}

void BoxItem::setMissing(bool missing)
{
    m_missing = missing;
    update();
}

QRectF BoxItem::boundingRect() const
{
    return m_place.adjusted(-Halo, -Halo, Halo, Halo);
}

QPainterPath BoxItem::outline() const
{
    QPainterPath path;
    if (!m_missing) {
        path.addRoundedRect(m_place, Corner, Corner);
        return path;
    }
    const qreal cutOff = 2 * Corner;
    const QRectF &p = m_place;
    path.addPolygon(QPolygonF({{p.left() + cutOff, p.top()},
                               {p.right() - cutOff, p.top()},
                               {p.right(), p.top() + cutOff},
                               {p.right(), p.bottom() - cutOff},
                               {p.right() - cutOff, p.bottom()},
                               {p.left() + cutOff, p.bottom()},
                               {p.left(), p.bottom() - cutOff},
                               {p.left(), p.top() + cutOff}}));
    path.closeSubpath();
    return path;
}

void BoxItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    QPen pen(m_missing ? inkOn(m_colour) : m_colour.darker(170), m_missing ? 1.5 : 1);
    if (m_missing)
        pen.setDashPattern({4, 3});
    const QPainterPath shape = outline();
    if (m_chosen)
        painter->strokePath(shape, QPen(m_look.highlight, 2 * Halo));
    painter->setPen(pen);
    painter->setBrush(m_colour);
    painter->drawPath(shape);
    drawText(*painter);
}

void BoxItem::drawText(QPainter &painter) const
{
    const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter.worldTransform());
    if (scale < TextSeen / 2)
        return;
    const QRectF inner = m_place.adjusted(Padding, NameTop, -Padding, 0);
    QColor ink = inkOn(m_colour);
    painter.setPen(ink);
    painter.setFont(fontOf(NamePixels));
    const QString name = m_autoSize ? cut(m_name, NamePixels, LongestText) : m_shortName;
    painter.drawText(QRectF(inner.topLeft(), QSizeF(inner.width(), NameHeight)), Qt::AlignCenter, name);
    if (scale < TextSeen)
        return;
    ink.setAlphaF(0.72F);
    painter.setPen(ink);
    painter.setFont(fontOf(FolderPixels));
    const QString folder = m_autoSize ? cut(m_folder, FolderPixels, LongestText) : m_shortFolder;
    painter.drawText(QRectF(inner.left(), inner.top() + NameHeight, inner.width(), FolderHeight), Qt::AlignCenter,
                     folder);
}

LineItem::LineItem(const MapLine &line, const QRectF &target, const MapLook &look)
    : m_look(look),
      m_line(sceneLength(line.fromCentre.x()), sceneLength(line.fromCentre.y()), sceneLength(line.toCentre.x()),
             sceneLength(line.toCentre.y())),
      m_target(target),
      m_colour(line.colour)
{
    setFlag(ItemUsesExtendedStyleOption); // tells what is exposed
}

void LineItem::setWeight(MapWeight weight)
{
    m_weight = weight;
    setZValue(weight == MapWeight::Strong ? 0.5 : 0);
    update();
}

void LineItem::setArrow(bool shown)
{
    m_arrow = shown;
    update();
}

QRectF LineItem::ring() const
{
    return {m_target.right() - RingSize * 0.65, m_target.top() - RingSize * 0.6, RingSize, RingSize};
}

QRectF LineItem::boundingRect() const
{
    if (isRing())
        return ring().adjusted(-Halo, -Halo, Halo, Halo);
    const qreal margin = ArrowLength;
    return QRectF(m_line.p1(), m_line.p2()).normalized().adjusted(-margin, -margin, margin, margin);
}

void LineItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget * /*widget*/)
{
    const QRectF exposed = option->exposedRect.adjusted(-ArrowLength, -ArrowLength, ArrowLength, ArrowLength);
    if (!isRing() && passesBy(m_line, exposed))
        return;
    QColor colour =
        m_colour ? m_look.seen(QColor(redOf(*m_colour), greenOf(*m_colour), blueOf(*m_colour))) : m_look.text;
    colour.setAlphaF(static_cast<float>(lineOpacity(m_weight)));
    painter->setPen(QPen(colour, m_weight == MapWeight::Strong ? 2.4 : 1.2));
    painter->setBrush(Qt::NoBrush);
    if (isRing()) {
        painter->drawEllipse(ring());
        return;
    }
    painter->drawLine(m_line);
    if (m_arrow || m_weight == MapWeight::Strong)
        drawArrow(*painter);
}

void LineItem::drawArrow(QPainter &painter) const
{
    const QPointF tip = edgeTowards(m_target, m_line.p1());
    QLineF back(tip, m_line.p1());
    if (back.length() < ArrowLength)
        return;
    back.setLength(ArrowLength);
    const QLineF across = back.normalVector();
    const QPointF half = (across.p2() - across.p1()) / ArrowLength * ArrowWidth;
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({tip, back.p2() + half, back.p2() - half}));
}
