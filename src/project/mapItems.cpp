#include "project/mapItems.h"

#include "widgets/contrast.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>

namespace
{
constexpr qreal Corner = 5;
constexpr qreal Padding = 6;
constexpr qreal NameTop = 2;
constexpr qreal NameHeight = 16;
constexpr qreal FolderHeight = 13;
constexpr int NamePixels = 12;
constexpr int FolderPixels = 10;
constexpr qreal Halo = 3;           ///< what a box's outline needs beyond its place
constexpr qreal LongestText = 1200; ///< beyond which even a box that takes its text's size cuts it
constexpr double FolderInk = 0.72;
constexpr qreal TextSeen = 0.4; ///< scale below which the folder is not drawn, and below whose half the name is not

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

/// Boxes lie over each other by how much they stand out.
void BoxItem::raise()
{
    setZValue(m_autoSize ? 4 : m_chosen ? 3 : m_weight == MapWeight::Strong ? 2 : 1);
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
    raise();
    update();
}

void BoxItem::setChosen(bool chosen)
{
    m_chosen = chosen;
    raise();
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

QColor BoxItem::fill() const
{
    return m_weight == MapWeight::Faint ? m_look.faint(m_colour) : m_colour;
}

/// Black or white at full strength, and nearer to the box's own colour where it is to step back.
QColor BoxItem::ink(double strength) const
{
    constexpr double OfFaint = 0.7;
    const QColor ground = fill();
    return mixed(ground, inkOn(ground), m_weight == MapWeight::Faint ? strength * OfFaint : strength);
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
    QPen pen(m_missing ? ink(1) : fill().darker(170), m_missing ? 1.5 : 1);
    if (m_missing)
        pen.setDashPattern({4, 3});
    const QPainterPath shape = outline();
    if (m_chosen)
        painter->strokePath(shape, QPen(m_look.highlight, 2 * Halo));
    painter->setPen(pen);
    painter->setBrush(fill());
    painter->drawPath(shape);
    drawText(*painter);
}

void BoxItem::drawText(QPainter &painter) const
{
    const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter.worldTransform());
    if (scale < TextSeen / 2)
        return;
    const QRectF inner = m_place.adjusted(Padding, NameTop, -Padding, 0);
    painter.setPen(ink(1));
    painter.setFont(fontOf(NamePixels));
    const QString name = m_autoSize ? cut(m_name, NamePixels, LongestText) : m_shortName;
    painter.drawText(QRectF(inner.topLeft(), QSizeF(inner.width(), NameHeight)), Qt::AlignCenter, name);
    if (scale < TextSeen)
        return;
    painter.setPen(ink(FolderInk));
    painter.setFont(fontOf(FolderPixels));
    const QString folder = m_autoSize ? cut(m_folder, FolderPixels, LongestText) : m_shortFolder;
    painter.drawText(QRectF(inner.left(), inner.top() + NameHeight, inner.width(), FolderHeight), Qt::AlignCenter,
                     folder);
}
