#include "common/darkGround.h"

#include "common/colouringOptions.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{
double linear(int part)
{
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(ColourValue colour)
{
    return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour)) + 0.0722 * linear(blueOf(colour));
}

/// The contrast of a colour with a darker ground, from 1 to 21; 4.5 is what text needs to be read.
double contrast(ColourValue colour, ColourValue ground)
{
    return (luminance(colour) + 0.05) / (luminance(ground) + 0.05);
}

TEST(DarkGround, EveryDefaultColourIsReadableOnIt)
{
    const ColouringOptions defaults;
    for (const ColourValue colour : {defaults.ColourCodeTag, defaults.ColourCodeAttribute, defaults.ColourCodeValue,
                                     defaults.ColourCodeComment, defaults.ColourASPCode, defaults.ColourCodeURL}) {
        EXPECT_GE(contrast(readableOnDark(colour), colourOf(45, 45, 45)), 4.5) << colour;
        EXPECT_NE(readableOnDark(colour), colour);
    }
}

TEST(DarkGround, EveryDefaultColourIsReadableOnALightOneToo)
{
    const ColouringOptions defaults;
    for (const ColourValue colour : {defaults.ColourCodeTag, defaults.ColourCodeAttribute, defaults.ColourCodeValue,
                                     defaults.ColourCodeComment, defaults.ColourASPCode, defaults.ColourCodeURL})
        EXPECT_GE(contrast(colourOf(255, 255, 255), readableOnLight(colour)), 4.5) << colour;
}

TEST(DarkGround, ColoursOfTheUsersOwnStay)
{
    EXPECT_EQ(readableOnLight(8388609), 8388609U);
    EXPECT_EQ(readableOnLight(WindowTextColour), WindowTextColour);
    EXPECT_EQ(readableOnDark(8388609), 8388609U);
    EXPECT_EQ(readableOnDark(0), 0U);
    EXPECT_EQ(readableOnDark(WindowTextColour), WindowTextColour);
}
} // namespace
