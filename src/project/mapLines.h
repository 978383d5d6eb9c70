#pragma once

#include "project/mapItems.h"

#include <QLineF>
#include <QList>

/// The links of a map: a line each from the centre of the page's box to that of its target's, with an arrow where it
/// reaches it. That of a page to itself is a ring at the box's corner.
///
/// They are one item, since a scene asks every item of its own whether it is to be drawn, at every step of a drag.
class LinesItem final : public QGraphicsItem
{
public:
    enum class Draws { StrongOnes, Others };

    LinesItem(const MapLook &look, Draws which);

    /// Lines are numbered from 0 as they are added. `target` is the place of the box that the line leads to.
    void add(const MapLine &line, const QRectF &target);
    qsizetype count() const { return m_lines.size(); }

    void clear();

    void setWeight(int line, MapWeight weight);
    void setWeights(MapWeight weight); ///< of all
    /// The look that was given at first has changed.
    void lookChanged();

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    struct Line {
        QLineF way; ///< from the page to the target
        QRectF target;
        QRectF bounds;
        QColor colour; ///< as it is seen on the ground
        std::optional<ColourValue> own;
        MapWeight weight = MapWeight::Usual;
    };

    bool isSeen(const Line &line, const QRectF &exposed) const;
    void drawLine(QPainter &painter, const Line &line) const;
    QColor shownColour(const std::optional<ColourValue> &own) const;

    const MapLook &m_look;
    Draws m_which;
    QList<Line> m_lines;
    QRectF m_bounds;
};
