#include "project/mapScene.h"

#include <QSet>

namespace
{
constexpr qreal StrongLines = 1.5; ///< their height on the sheet, between that of boxes and of strong boxes
}

MapScene::MapScene(std::shared_ptr<const SiteMap> map, const MapLook &look,
                   std::function<bool(const MapBox &)> isMissing, QObject *parent)
    : QGraphicsScene(parent), m_map(std::move(map)), m_look(look), m_isMissing(std::move(isMissing))
{
    // The lines are passed over fast by themselves, and boxes are few.
    setItemIndexMethod(NoIndex);
    setBackgroundBrush(m_look.ground);
    m_lines = new LinesItem(m_look, LinesItem::Draws::Others);
    m_strongLines = new LinesItem(m_look, LinesItem::Draws::StrongOnes);
    m_strongLines->setZValue(StrongLines);
    addItem(m_lines);
    addItem(m_strongLines);
    takeNew();
}

void MapScene::takeNew()
{
    setSceneRect(0, 0, sceneLength(m_map->sheet().width()), sceneLength(m_map->sheet().height()));
    for (qsizetype i = m_boxes.size(); i < m_map->boxes().size(); ++i) {
        const MapBox &box = m_map->boxes()[i];
        auto *item = new BoxItem(box, m_look);
        m_missing.append(m_isMissing(box));
        item->setMissing(m_missing.last());
        m_boxes.append(item);
        addItem(item);
    }
    for (qsizetype i = m_lines->count(); i < m_map->lines().size(); ++i)
        m_lines->add(m_map->lines()[i], m_boxes[m_map->lines()[i].to]->place());
}

void MapScene::setLook(const MapLook &look)
{
    m_look = look;
    setBackgroundBrush(m_look.ground);
    m_lines->lookChanged();
    m_strongLines->lookChanged();
    update();
}

std::optional<int> MapScene::boxAt(const QPointF &point) const
{
    std::optional<int> found;
    for (int i = 0; i < m_boxes.size(); ++i)
        if (m_boxes[i]->place().contains(point) &&
            (!found || m_boxes[i]->zValue() >= m_boxes[*found]->zValue())) // later ones are drawn over earlier ones
            found = i;
    return found;
}

void MapScene::enlarge(int box)
{
    m_enlarged = true;
    m_boxes[box]->setAutoSize(true);
}

void MapScene::shrinkAll()
{
    for (BoxItem *box : std::as_const(m_boxes))
        box->setAutoSize(false);
    m_enlarged = false;
}

void MapScene::choose(std::optional<int> box)
{
    if (box == m_chosen)
        return;
    if (m_chosen)
        m_boxes[*m_chosen]->setChosen(false);
    m_chosen = box;
    if (box)
        m_boxes[*box]->setChosen(true);
    weigh();
    Q_EMIT chosenChanged();
}

void MapScene::weigh()
{
    const MapWeight rest = m_chosen ? MapWeight::Faint : MapWeight::Usual;
    for (BoxItem *box : std::as_const(m_boxes))
        box->setWeight(rest);
    m_lines->setWeights(rest);
    m_strongLines->clear();
    if (!m_chosen)
        return;
    m_boxes[*m_chosen]->setWeight(MapWeight::Strong);
    for (const int line : m_map->boxes()[*m_chosen].lines) {
        m_lines->setWeight(line, MapWeight::Strong);
        m_strongLines->add(m_map->lines()[line], m_boxes[m_map->lines()[line].to]->place());
        m_boxes[m_map->lines()[line].to]->setWeight(MapWeight::Strong);
        m_boxes[m_map->lines()[line].from]->setWeight(MapWeight::Strong);
    }
    m_strongLines->setWeights(MapWeight::Strong);
}

QList<int> MapScene::linksTo(int box) const
{
    QList<int> found;
    for (const int line : m_map->boxes()[box].lines)
        if (m_map->lines()[line].to == box && !found.contains(m_map->lines()[line].from))
            found.append(m_map->lines()[line].from);
    return found;
}

QList<int> MapScene::linksFrom(int box) const
{
    QList<int> found;
    for (const int line : m_map->boxes()[box].lines)
        if (m_map->lines()[line].from == box && !found.contains(m_map->lines()[line].to))
            found.append(m_map->lines()[line].to);
    return found;
}

std::optional<int> MapScene::nextAlongLines(int box, const QPointF &way) const
{
    std::optional<int> best;
    qreal least = 0;
    for (const int line : m_map->boxes()[box].lines) {
        const MapLine &joined = m_map->lines()[line];
        const int other = joined.to == box ? joined.from : joined.to;
        const QPointF offset = place(other).center() - place(box).center();
        const qreal along = QPointF::dotProduct(offset, way);
        const qreal aside = std::abs(offset.x() * way.y() - offset.y() * way.x());
        if (other == box || along <= 0 || aside > along) // not within 45 degrees of the way
            continue;
        const qreal cost = along + 2 * aside;
        if (!best || cost < least) {
            best = other;
            least = cost;
        }
    }
    return best;
}
