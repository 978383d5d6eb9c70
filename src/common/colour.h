#pragma once

#include <QtGlobal>

/// A colour as the settings hold it: 24 bits with red in the low byte. With the top bit set it names a colour of the
/// desktop's theme instead.
using ColourValue = quint32;

constexpr ColourValue WindowTextColour = 0x80000008; ///< the theme's text colour: the neutral colour of a document
constexpr ColourValue WindowColour = 0x80000005;
constexpr ColourValue HighlightColour = 0x8000000D;
constexpr ColourValue ButtonFaceColour = 0x8000000F;

constexpr bool isSystemColour(ColourValue colour)
{
    return (colour & 0x80000000U) != 0;
}
constexpr int redOf(ColourValue colour)
{
    return static_cast<int>(colour & 0xFFU);
}
constexpr int greenOf(ColourValue colour)
{
    return static_cast<int>((colour >> 8U) & 0xFFU);
}
constexpr int blueOf(ColourValue colour)
{
    return static_cast<int>((colour >> 16U) & 0xFFU);
}
constexpr ColourValue colourOf(int red, int green, int blue)
{
    return static_cast<ColourValue>(red) | static_cast<ColourValue>(green) << 8U |
           static_cast<ColourValue>(blue) << 16U;
}
