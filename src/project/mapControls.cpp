#include "project/mapControls.h"

#include "project/mapScene.h"
#include "project/mapView.h"

#include <QRegularExpression>

namespace
{
QPoint inPixels(const QPoint &twips)
{
    return {qRound(sceneLength(twips.x())), qRound(sceneLength(twips.y()))};
}

template <class Control, class... Arguments>
QObject *named(MapView &view, const QString &name, Arguments... arguments)
{
    if (auto *known = view.findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return known;
    auto *made = new Control(view, arguments..., &view);
    made->setObjectName(name);
    return made;
}
} // namespace

MapBoxControl::MapBoxControl(MapView &view, int index, QObject *parent)
    : DrawnControl(parent), m_view(view), m_index(index)
{
}

QString MapBoxControl::Caption() const
{
    if (m_index == 0)
        return QStringLiteral("Document");
    const MapBox &box = m_view.map()->map().boxes()[m_index - 1];
    return boxCaption(box.name, box.folder);
}

QRect MapBoxControl::place() const
{
    if (m_index == 0)
        return {QPoint(), scenePlace(QRect(QPoint(), m_view.map()->map().style().box)).toAlignedRect().size()};
    return m_view.map()->place(m_index - 1).toAlignedRect();
}

ColourValue MapBoxControl::BackColor() const
{
    return m_index == 0 ? ButtonFaceColour : m_view.map()->map().boxes()[m_index - 1].colour;
}

bool MapBoxControl::Focus() const
{
    return m_index > 0 && m_view.map()->chosen() == m_index - 1;
}

QString MapBoxControl::ToolTipText() const
{
    return m_index == 0 ? QString() : m_view.toolTipOf(m_index - 1);
}

QWidget *MapBoxControl::surface() const
{
    return m_view.viewport();
}

QRect MapBoxControl::area() const
{
    return m_view.mapFromScene(place()).boundingRect();
}

void MapBoxControl::reveal()
{
    if (m_index > 0)
        m_view.showBox(m_index - 1);
}

MapLineControl::MapLineControl(MapView &view, int index, QObject *parent)
    : DrawnControl(parent), m_view(view), m_index(index)
{
}

QPoint MapLineControl::end(bool first) const
{
    if (m_index == 0)
        return {};
    const MapLine &line = m_view.map()->map().lines()[m_index - 1];
    return inPixels(first ? line.toCentre : line.fromCentre);
}

ColourValue MapLineControl::BorderColor() const
{
    return m_index == 0 ? WindowTextColour : m_view.map()->map().lines()[m_index - 1].colour.value_or(WindowTextColour);
}

QWidget *MapLineControl::surface() const
{
    return m_view.viewport();
}

QRect MapLineControl::area() const
{
    return m_view.mapFromScene(QRect(end(true), end(false)).normalized()).boundingRect();
}

MapSheetControl::MapSheetControl(MapView &view, QObject *parent) : DrawnControl(parent), m_view(view) {}

bool MapSheetControl::Visible() const
{
    return m_view.isVisible();
}

QWidget *MapSheetControl::surface() const
{
    return m_view.viewport();
}

QRect MapSheetControl::area() const
{
    return QRect(-m_view.scrolled(), (m_view.sceneRect().size() * m_view.zoom()).toSize());
}

QObject *mapControl(MapView &view, const QString &name)
{
    if (name == u"picProject")
        return named<MapSheetControl>(view, name);
    static const QRegularExpression member(QStringLiteral(R"(^(lblDocName|linConnection)\((\d+)\)$)"));
    const QRegularExpressionMatch match = member.match(name);
    if (!match.hasMatch() || !view.map())
        return nullptr;
    const bool isBox = match.captured(1) == u"lblDocName";
    const int index = match.captured(2).toInt();
    const SiteMap &map = view.map()->map();
    if (index > (isBox ? map.boxes().size() : map.lines().size()))
        return nullptr;
    return isBox ? named<MapBoxControl>(view, name, index) : named<MapLineControl>(view, name, index);
}
