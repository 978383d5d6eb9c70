#include "project/mapLook.h"

#include "widgets/contrast.h"

#include <QPalette>

namespace
{
constexpr double LeastOfLines = 1.9; ///< of a line against the ground; text would need more
constexpr double LeastOfChosen = 3;
} // namespace

MapLook MapLook::ofTheme(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    return {ground, text, toldApart(highlight, text, {ground}, LeastOfChosen)};
}

MapLook MapLook::onPaper()
{
    return {Qt::white, Qt::black, QColor(0x1F5FA8)};
}

QColor MapLook::seen(const QColor &colour) const
{
    return toldApart(colour, text, {ground}, LeastOfLines);
}

QColor MapLook::faint(const QColor &colour) const
{
    constexpr double ShareOfColour = 0.38;
    return mixed(ground, colour, ShareOfColour);
}

QColor inkOn(const QColor &colour)
{
    return contrast(colour, Qt::black) >= contrast(colour, Qt::white) ? Qt::black : Qt::white;
}
