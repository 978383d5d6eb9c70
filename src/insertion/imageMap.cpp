#include "insertion/imageMap.h"

#include "insertion/attributeText.h"

namespace
{
const QString Break = QStringLiteral("\r\n");

/// Every corner ends in a comma; the end of the area takes the last one away.
QString cornersText(const QList<QPoint> &points)
{
    QString text;
    for (const QPoint &point : points)
        text += QStringLiteral("%1,%2,").arg(point.x()).arg(point.y());
    return text;
}

QString opening(const MapArea &area)
{
    return Break + QStringLiteral("<area") + attributeText(QStringLiteral("shape"), shapeName(area.shape)) +
           QStringLiteral(" coords=\"");
}

QString ending(int number)
{
    return u'"' + attributeText(QStringLiteral("href"), QStringLiteral("(link #%1)").arg(number)) + u'>';
}

QString areaMarkup(const MapArea &area, int number)
{
    if (area.shape != AreaShape::Polygon)
        return opening(area) + coordinatesText(area) + ending(number);
    const QString text = opening(area) + cornersText(area.points);
    return area.open ? text : text.chopped(1) + ending(number);
}
} // namespace

QString shapeName(AreaShape shape)
{
    switch (shape) {
    case AreaShape::Circle:
        return QStringLiteral("circle");
    case AreaShape::Polygon:
        return QStringLiteral("poly");
    case AreaShape::Rectangle:
        break;
    }
    return QStringLiteral("rect");
}

QString coordinatesText(const MapArea &area)
{
    const QString corners = cornersText(area.points);
    return area.shape == AreaShape::Circle ? corners + QString::number(area.radius) : corners.chopped(1);
}

QString imageMapMarkup(const QString &name, const QList<MapArea> &areas)
{
    QString text = QStringLiteral("<map") + attributeUnlessEmpty(QStringLiteral("name"), name) + u'>';
    int number = 0;
    for (const MapArea &area : areas) {
        text += areaMarkup(area, number);
        number += area.open ? 0 : 1;
    }
    return text + Break + QStringLiteral("</map>");
}
