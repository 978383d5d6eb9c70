#include "widgets/contrast.h"

#include <algorithm>
#include <cmath>

namespace
{
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto part = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor toldApart(const QColor &colour, const QColor &towards, const QList<QColor> &grounds, double least)
{
    constexpr int Steps = 20;
    for (int step = 0; step < Steps; ++step) {
        const QColor shade = step == 0 ? colour : mixed(colour, towards, static_cast<double>(step) / Steps);
        if (std::all_of(grounds.begin(), grounds.end(),
                        [&](const QColor &ground) { return contrast(shade, ground) >= least; }))
            return shade;
    }
    return towards;
}
