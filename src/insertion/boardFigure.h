#pragma once

#include "common/colour.h"

#include <QLineF>
#include <QObject>
#include <QRegion>
#include <algorithm>
#include <cmath>

class QPainter;

/// A line or an oval that lies over the picture of a drawing board, as an object with a name and with a place that can
/// be looked at. Lengths are in pixels of the picture.
class BoardFigure final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool Visible READ Visible)
    Q_PROPERTY(double X1 READ X1)
    Q_PROPERTY(double Y1 READ Y1)
    Q_PROPERTY(double X2 READ X2)
    Q_PROPERTY(double Y2 READ Y2)
    Q_PROPERTY(double Left READ Left)
    Q_PROPERTY(double Top READ Top)
    Q_PROPERTY(double Width READ Width)
    Q_PROPERTY(double Height READ Height)
    Q_PROPERTY(uint BorderColor READ BorderColor)
public:
    enum class Kind { Line, Oval };
    BoardFigure(const QString &name, Kind kind, ColourValue colour, QObject *parent);

    bool Visible() const { return m_visible; }
    double X1() const { return m_place.x1(); }
    double Y1() const { return m_place.y1(); }
    double X2() const { return m_place.x2(); }
    double Y2() const { return m_place.y2(); }
    double Left() const { return std::min(X1(), X2()); }
    double Top() const { return std::min(Y1(), Y2()); }
    double Width() const { return std::abs(m_place.dx()); }
    double Height() const { return std::abs(m_place.dy()); }
    ColourValue BorderColor() const { return m_colour; }

    /// A line from its first point to its second; an oval between two opposite corners.
    void place(const QLineF &place, bool visible);

    /// What it covers on a board of that zoom, in the board's own pixels; nothing while it is hidden.
    QRegion region(int zoom) const;
    void draw(QPainter &painter, int zoom) const;

Q_SIGNALS:
    /// It is about to change, or has changed: the board draws anew what it covers now.
    void covers();

private:
    Kind m_kind;
    ColourValue m_colour;
    QLineF m_place;
    bool m_visible = false;
};
