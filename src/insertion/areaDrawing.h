#pragma once

#include "insertion/imageMap.h"

#include <QLineF>
#include <optional>

/// A line, box or circle as it stands on the picture once it is drawn.
struct DrawnMark {
    enum class Kind { Line, Box, Circle };
    Kind kind = Kind::Line;
    QLineF line = {};  ///< from and to; a box's opposite corners; of a circle, `p1` is the centre
    double radius = 0; ///< of a circle
};

/// What follows the pointer while an area is drawn.
struct RubberBand {
    bool visible = false;
    QLineF line = {};
};

/// The drawing of areas by pointer: presses, moves and releases become areas. It knows neither a window nor markup.
///
/// Positions are in pixels of the picture and may have fractions; an area has whole ones, halves going to the even
/// number. Whoever calls keeps them within the picture.
class AreaDrawing
{
public:
    /// A designer opens: the first tool, nothing to be seen. The areas that are there stay, unseen; a polygon that is
    /// still open among them stays open for good.
    void begin();
    /// Forgets all areas.
    void clear();

    AreaShape tool() const { return m_tool; }
    /// Takes another tool, or the same again; an open polygon is finished.
    void choose(AreaShape tool);

    void press(const QPointF &at);
    void move(const QPointF &at, bool held);
    /// Nothing if the tool was changed since the press.
    void release(const QPointF &at);
    /// Joins an open polygon's last corner to its first one, which is written again where it differs in both
    /// coordinates. Nothing without an open polygon.
    void finishPolygon();

    /// An area is begun and not yet done.
    bool isDrawing() const;
    /// Takes back the last corner of the area that is being drawn; false if none is.
    bool takeBackCorner();
    /// Takes the last area back, an open one included; false if there is none.
    bool takeBackArea();
    /// Takes all marks off the picture; the areas stay.
    void clearMarks();

    const QList<MapArea> &areas() const { return m_areas; }
    QList<DrawnMark> marks() const;

    const RubberBand &rectangle() const { return m_rectangle; } ///< from the anchor to the moving corner
    const RubberBand &circle() const { return m_circle; }       ///< from the centre to the pointer
    const RubberBand &polygon() const { return m_polygon; }     ///< the edge that is being drawn
    bool sidesVisible() const { return m_sidesVisible; }        ///< the rectangle's, from the first move on
    bool ovalVisible() const { return m_ovalVisible; }          ///< the circle itself, from the first move on

private:
    void pressPolygon(const QPointF &at);
    void releaseRectangle();
    void releaseCircle(const QPointF &at);
    void releasePolygon(const QPointF &at);
    void add(const MapArea &area, const DrawnMark &mark);
    void dropBands();

    QList<MapArea> m_areas;
    QList<QList<DrawnMark>> m_marks; ///< of each area
    AreaShape m_tool = AreaShape::Rectangle;
    bool m_pressed = false;
    RubberBand m_rectangle;
    RubberBand m_circle;
    RubberBand m_polygon;
    bool m_sidesVisible = false;
    bool m_ovalVisible = false;
    QPoint m_first; ///< where the open polygon was begun
    QPoint m_last;  ///< its latest corner
};
