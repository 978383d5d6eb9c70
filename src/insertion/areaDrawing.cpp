#include "insertion/areaDrawing.h"

#include <cmath>
#include <utility>

namespace
{
/// Halves go to the even number.
int rounded(double value)
{
    return static_cast<int>(std::lrint(value));
}

QPoint rounded(const QPointF &point)
{
    return {rounded(point.x()), rounded(point.y())};
}
} // namespace

void AreaDrawing::begin()
{
    dropBands();
    clearMarks();
    m_tool = AreaShape::Rectangle;
}

void AreaDrawing::clear()
{
    dropBands();
    m_areas.clear();
    m_marks.clear();
}

void AreaDrawing::dropBands()
{
    m_rectangle = m_circle = m_polygon = {};
    m_sidesVisible = m_ovalVisible = m_pressed = false;
}

void AreaDrawing::choose(AreaShape tool)
{
    finishPolygon();
    dropBands();
    m_tool = tool;
}

void AreaDrawing::press(const QPointF &at)
{
    m_pressed = true;
    switch (m_tool) {
    case AreaShape::Rectangle:
        m_rectangle = {true, {at, at}};
        break;
    case AreaShape::Circle:
        m_circle = {true, {at, at}};
        break;
    case AreaShape::Polygon:
        pressPolygon(at);
        break;
    }
}

void AreaDrawing::pressPolygon(const QPointF &at)
{
    m_last = rounded(at);
    if (m_polygon.visible) {
        m_polygon.line.setP2(at);
        return;
    }
    m_polygon = {true, {at, at}};
    m_first = m_last;
    m_areas.append({.shape = AreaShape::Polygon, .open = true});
    m_marks.append(QList<DrawnMark>());
}

void AreaDrawing::move(const QPointF &at, bool held)
{
    if (m_tool == AreaShape::Rectangle) {
        m_rectangle.line.setP2(at); // kept up to date without a button, too, when nothing shows
        m_sidesVisible = m_rectangle.visible;
    } else if (m_tool == AreaShape::Circle && m_circle.visible) {
        m_circle.line.setP2(at);
        m_ovalVisible = true;
    } else if (m_tool == AreaShape::Polygon && m_polygon.visible && held) {
        m_polygon.line.setP2(at);
    }
}

void AreaDrawing::release(const QPointF &at)
{
    if (!std::exchange(m_pressed, false))
        return;
    switch (m_tool) {
    case AreaShape::Rectangle:
        releaseRectangle();
        break;
    case AreaShape::Circle:
        releaseCircle(at);
        break;
    case AreaShape::Polygon:
        releasePolygon(at);
        break;
    }
}

void AreaDrawing::add(const MapArea &area, const DrawnMark &mark)
{
    m_areas.append(area);
    m_marks.append({mark});
}

/// The corner is where the pointer was seen last, not where it was let go.
void AreaDrawing::releaseRectangle()
{
    const QLineF &line = m_rectangle.line;
    add({.shape = AreaShape::Rectangle, .points = {rounded(line.p1()), rounded(line.p2())}},
        {.kind = DrawnMark::Kind::Box, .line = line});
    m_rectangle.visible = m_sidesVisible = false;
}

void AreaDrawing::releaseCircle(const QPointF &at)
{
    const QPointF centre = m_circle.line.p1();
    const int radius = rounded(QLineF(centre, at).length());
    add({.shape = AreaShape::Circle, .points = {rounded(centre)}, .radius = radius},
        {.kind = DrawnMark::Kind::Circle, .line = {centre, centre}, .radius = static_cast<double>(radius)});
    m_circle.visible = m_ovalVisible = false;
}

void AreaDrawing::releasePolygon(const QPointF &at)
{
    m_marks.last().append({.line = m_polygon.line});
    m_last = rounded(at);
    m_polygon.line = {at, at};
    m_areas.last().points.append(m_last);
}

void AreaDrawing::finishPolygon()
{
    if (m_tool != AreaShape::Polygon || !m_polygon.visible)
        return;
    MapArea &area = m_areas.last();
    if (m_first.x() != m_last.x() && m_first.y() != m_last.y()) {
        m_marks.last().append({.line = {QPointF(m_last), QPointF(m_first)}});
        area.points.append(m_first);
    }
    area.open = false;
    m_polygon.visible = false;
}

bool AreaDrawing::isDrawing() const
{
    return m_rectangle.visible || m_circle.visible || m_polygon.visible;
}

bool AreaDrawing::takeBackCorner()
{
    if (!isDrawing())
        return false;
    if (m_polygon.visible && m_areas.last().points.size() > 1) {
        m_areas.last().points.removeLast();
        if (!m_marks.last().isEmpty()) // the marks may have gone with a picture
            m_marks.last().removeLast();
        m_last = m_areas.last().points.last();
        m_polygon.line = {QPointF(m_last), QPointF(m_last)};
        return true;
    }
    if (m_polygon.visible)
        return takeBackArea();
    dropBands();
    return true;
}

bool AreaDrawing::takeBackArea()
{
    dropBands();
    if (m_areas.isEmpty())
        return false;
    m_areas.removeLast();
    m_marks.removeLast();
    return true;
}

void AreaDrawing::clearMarks()
{
    for (QList<DrawnMark> &marks : m_marks)
        marks.clear();
}

QList<DrawnMark> AreaDrawing::marks() const
{
    QList<DrawnMark> all;
    for (const QList<DrawnMark> &marks : m_marks)
        all.append(marks);
    return all;
}
