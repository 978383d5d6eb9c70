#include "project/mapLook.h"

#include <QPalette>
#include <cmath>

namespace
{
constexpr qreal LeastContrast = 1.9; ///< of a line against the ground; text would need more

qreal linear(qreal channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

qreal contrast(const QColor &one, const QColor &other)
{
    const qreal a = luminance(one);
    const qreal b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor mixed(const QColor &from, const QColor &to, qreal share)
{
    const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}
} // namespace

MapLook MapLook::ofTheme(const QPalette &palette)
{
    return {palette.color(QPalette::Active, QPalette::Base), palette.color(QPalette::Active, QPalette::Text),
            palette.color(QPalette::Active, QPalette::Highlight)};
}

MapLook MapLook::onPaper()
{
    return {Qt::white, Qt::black, QColor(0x1F5FA8)};
}

QColor MapLook::seen(const QColor &colour) const
{
    constexpr qreal Step = 0.1;
    QColor result = colour;
    for (qreal share = Step; share < 1 && contrast(result, ground) < LeastContrast; share += Step)
        result = mixed(colour, text, share);
    return result;
}

QColor inkOn(const QColor &colour)
{
    return contrast(colour, Qt::black) >= contrast(colour, Qt::white) ? Qt::black : Qt::white;
}
