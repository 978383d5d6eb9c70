#pragma once

#include "project/mapLook.h"
#include "project/siteMap.h"

#include <QFont>
#include <QGraphicsItem>

/// How much a part of the map stands out.
enum class MapWeight { Usual, Strong, Faint };

/// Lengths of the map in scene units, which are logical pixels at 100 %.
constexpr qreal sceneLength(int twips)
{
    return twips / 15.0;
}
QRectF scenePlace(const QRect &place);

/// A box of the map: two lines of text, the name and its folder, cut short where they do not fit until the box takes
/// the size of its text.
class BoxItem final : public QGraphicsItem
{
public:
    BoxItem(const MapBox &box, const MapLook &look);

    /// The box is as large as its text needs, or has the size of all boxes; its centre stays where it is.
    void setAutoSize(bool on);
    QRectF place() const { return m_place; }

    void setWeight(MapWeight weight);
    void setChosen(bool chosen);
    /// Its file is one of the project's and is not on the disk: drawn with cut corners and a broken outline.
    void setMissing(bool missing);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void raise();
    QColor fill() const;
    QColor ink(double strength) const;
    QPainterPath outline() const;
    void drawText(QPainter &painter) const;

    const MapLook &m_look;
    QString m_name; ///< in one line each
    QString m_folder;
    QString m_shortName;
    QString m_shortFolder;
    QColor m_colour;
    QRectF m_usualPlace;
    QRectF m_place;
    MapWeight m_weight = MapWeight::Usual;
    bool m_autoSize = false;
    bool m_chosen = false;
    bool m_missing = false;
};
