#include "project/siteMap.h"

#include "services/random.h"

#include <algorithm>

namespace
{
constexpr int TwipsPerPixel = 15;
constexpr int Tries = 5;
constexpr int Growth = 120; ///< of the sheet, beside the box that makes it grow
constexpr int Margin = 60;  ///< from that box to the sheet's new edges

/// Whether the corner lies in the place or on one of its four edges.
bool isWithin(QPoint corner, const QRect &place)
{
    return corner.x() >= place.x() && corner.x() <= place.x() + place.width() && corner.y() >= place.y() &&
           corner.y() <= place.y() + place.height();
}

QPoint centreOf(const QRect &place)
{
    return {place.x() + place.width() / 2, place.y() + place.height() / 2};
}
} // namespace

QString boxCaption(const QString &name, const QString &folder)
{
    return name + QStringLiteral("\r\n[") + folder + u']';
}

bool SiteMap::BoxExists(const QString &name, const QString &folder) const
{
    return m_byCaption.contains(boxCaption(name, folder));
}

ColourValue SiteMap::colourOf(const QString &name, const QString &folder) const
{
    ColourValue colour = m_projectPages.contains(folder + name) ? m_style.located : m_style.notLocated;
    // Addresses that start with "https:" or "shttp:" are none by this test.
    if (name.left(5).toLower() == u"http:")
        colour = m_style.url;
    if (name.left(7).toLower() == u"mailto:")
        colour = m_style.email;
    return colour;
}

void SiteMap::AddBox(const QString &name, const QString &folder)
{
    if (m_boxes.size() >= Most)
        return;
    MapBox box{name, folder, QRect(QPoint(), m_style.box), colourOf(name, folder)};
    PlaceBox(box);
    m_byCaption.insert(boxCaption(name, folder), static_cast<int>(m_boxes.size()));
    m_boxes.append(box);
}

/// A whole number of pixels, so that boxes are drawn sharply.
int SiteMap::randomUpTo(int bound)
{
    return m_random.below(bound / TwipsPerPixel + 1) * TwipsPerPixel;
}

void SiteMap::PlaceBox(MapBox &box)
{
    const QSize size = m_style.box;
    for (int attempt = 0; attempt < Tries; ++attempt) {
        const int left = randomUpTo(m_sheet.width() - size.width());
        const int top = randomUpTo(m_sheet.height() - size.height());
        box.place.moveTo(left, top);
        if (!BoxesOverlap(box))
            return;
    }
    m_sheet += size + QSize(Growth, Growth);
    box.place.moveTo(m_sheet.width() - size.width() - Margin, m_sheet.height() - size.height() - Margin);
}

bool SiteMap::BoxesOverlap(const MapBox &box) const
{
    return std::any_of(m_boxes.begin(), m_boxes.end(), [&box](const MapBox &other) {
        return isWithin(box.place.topLeft(), other.place) || isWithin(other.place.topLeft(), box.place);
    });
}

void SiteMap::AddLine(const QString &toName, const QString &toFolder, const QString &fromName,
                      const QString &fromFolder)
{
    const auto to = m_byCaption.constFind(boxCaption(toName, toFolder));
    const auto from = m_byCaption.constFind(boxCaption(fromName, fromFolder));
    if (to == m_byCaption.constEnd() || from == m_byCaption.constEnd() || m_lines.size() >= Most)
        return;
    MapLine line{*to, *from, centreOf(m_boxes[*to].place), centreOf(m_boxes[*from].place), std::nullopt};
    if (m_style.randomLines) {
        constexpr int Shades = 250;
        const int red = m_random.below(Shades);
        const int green = m_random.below(Shades);
        line.colour = ::colourOf(red, green, m_random.below(Shades));
    }
    const int index = static_cast<int>(m_lines.size());
    m_lines.append(line);
    m_boxes[*to].lines.append(index);
    if (*to != *from)
        m_boxes[*from].lines.append(index);
}
