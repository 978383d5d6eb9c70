#pragma once

#include <QList>
#include <QPoint>
#include <QString>

enum class AreaShape { Rectangle, Circle, Polygon };

/// One area of an image map, in pixels of the picture.
struct MapArea {
    AreaShape shape = AreaShape::Rectangle;
    QList<QPoint> points = {}; ///< a rectangle's two corners as they were drawn, a circle's centre, a polygon's corners
    int radius = 0;            ///< of a circle
    bool open = false;         ///< a polygon that was never finished: it has no link, and its text breaks off
    bool operator==(const MapArea &) const = default;
};

/// The value of `shape`: "rect", "circle" or "poly".
QString shapeName(AreaShape shape);
/// The value of `coords`. The corners of a rectangle are not sorted.
QString coordinatesText(const MapArea &area);

/// One `map` element with an `area` a line. Each finished area has the placeholder of a link, numbered from 0; without
/// a name the map has none.
QString imageMapMarkup(const QString &name, const QList<MapArea> &areas);
