#pragma once

#include "project/mapItems.h"
#include "project/mapLines.h"

#include <QGraphicsScene>
#include <QList>
#include <functional>
#include <memory>

/// The drawing of a site map. The map itself is made by somebody else; the scene takes over what is new in it.
class MapScene final : public QGraphicsScene
{
    Q_OBJECT
public:
    /// `isMissing` tells of a box whether its file is one of the project's and not on the disk.
    MapScene(std::shared_ptr<const SiteMap> map, const MapLook &look, std::function<bool(const MapBox &)> isMissing,
             QObject *parent = nullptr);

    /// Draws the boxes and lines that have come since.
    void takeNew();
    void setLook(const MapLook &look);
    const MapLook &look() const { return m_look; }

    const SiteMap &map() const { return *m_map; }
    QRectF place(int box) const { return m_boxes[box]->place(); }
    std::optional<int> boxAt(const QPointF &point) const; ///< the one on top
    bool isMissing(int box) const { return m_missing[box]; }

    /// Lets a box take the size of its text, and gives all boxes their usual size again.
    void enlarge(int box);
    void shrinkAll();
    bool BoxEnlarged() const { return m_enlarged; }

    /// Shows a box's lines strongly and the rest faintly; nothing: all as usual.
    void choose(std::optional<int> box);
    std::optional<int> chosen() const { return m_chosen; }

    /// The boxes that link to a box, and those that it links to, each once.
    QList<int> linksTo(int box) const;
    QList<int> linksFrom(int box) const;
    /// Of the boxes joined to a box, the one that lies best in a direction; `way` has the length 1.
    std::optional<int> nextAlongLines(int box, const QPointF &way) const;

Q_SIGNALS:
    void chosenChanged();

private:
    void weigh();

    std::shared_ptr<const SiteMap> m_map;
    MapLook m_look;
    std::function<bool(const MapBox &)> m_isMissing;
    QList<BoxItem *> m_boxes;
    LinesItem *m_lines = nullptr;       ///< all of them, drawn under the boxes
    LinesItem *m_strongLines = nullptr; ///< those of the chosen box, drawn over the boxes that step back
    QList<bool> m_missing;
    std::optional<int> m_chosen;
    bool m_enlarged = false;
};
