#pragma once

#include "common/colour.h"

#include <QHash>
#include <QList>
#include <QRect>
#include <QSet>
#include <QSize>
#include <QString>
#include <optional>

class Random;

/// How a map is drawn. Lengths are twips, 15 to a logical pixel.
struct MapStyle {
    ColourValue located = 0;    ///< of a page of the project
    ColourValue notLocated = 0; ///< of every other target but those below
    ColourValue url = 0;        ///< of a name that starts with "http:"
    ColourValue email = 0;      ///< of a name that starts with "mailto:"
    bool randomLines = true;    ///< each line has a colour of its own
    QSize box;                  ///< every box's
    QSize sheet;                ///< at first
};

struct MapBox {
    QString name;
    QString folder; ///< with its final separator; empty where the name is all there is
    QRect place;    ///< in twips, `place.left() + place.width()` being the right edge
    ColourValue colour = 0;
    QList<int> lines = {}; ///< that end here, by their index
};

struct MapLine {
    int to = 0;   ///< the box of the target, by its index
    int from = 0; ///< the box of the page
    QPoint toCentre;
    QPoint fromCentre;
    std::optional<ColourValue> colour; ///< nothing: that of all lines
};

/// What a box is known by: two boxes of one caption are the same.
QString boxCaption(const QString &name, const QString &folder);

/// A site's pages and targets as boxes on a sheet, and the links as lines between them. Boxes are put down at random; a
/// crowded sheet grows.
class SiteMap
{
public:
    /// The highest number of boxes, and of lines; what is beyond is left out.
    static constexpr int Most = 32767;

    SiteMap(const MapStyle &style, const QSet<QString> &projectPages, Random &random)
        : m_style(style), m_projectPages(projectPages), m_random(random), m_sheet(style.sheet)
    {
    }

    bool BoxExists(const QString &name, const QString &folder) const;
    void AddBox(const QString &name, const QString &folder);
    /// Joins two boxes; nothing if one of them is not there.
    void AddLine(const QString &toName, const QString &toFolder, const QString &fromName, const QString &fromFolder);

    const QList<MapBox> &boxes() const { return m_boxes; }
    const QList<MapLine> &lines() const { return m_lines; }
    QSize sheet() const { return m_sheet; }
    const MapStyle &style() const { return m_style; }

private:
    ColourValue colourOf(const QString &name, const QString &folder) const;
    void PlaceBox(MapBox &box);
    bool BoxesOverlap(const MapBox &box) const;
    int randomUpTo(int bound);

    MapStyle m_style;
    QSet<QString> m_projectPages; ///< by their full paths
    Random &m_random;
    QSize m_sheet;
    QList<MapBox> m_boxes;
    QList<MapLine> m_lines;
    QHash<QString, int> m_byCaption;
};
