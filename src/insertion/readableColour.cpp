#include "insertion/readableColour.h"

#include <cmath>

namespace
{
constexpr ColourValue Black = colourOf(0, 0, 0);
constexpr ColourValue White = colourOf(0xFF, 0xFF, 0xFF);
constexpr double EvenGround = 0.179; // where black and white have the same contrast, (1.05 * 0.05) ^ 0.5 - 0.05

double linear(int level)
{
    const double share = level / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}
} // namespace

ColourValue readableColour(ColourValue ground)
{
    const double luminance =
        0.2126 * linear(redOf(ground)) + 0.7152 * linear(greenOf(ground)) + 0.0722 * linear(blueOf(ground));
    return luminance > EvenGround ? Black : White;
}
