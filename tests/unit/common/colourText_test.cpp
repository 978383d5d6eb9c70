#include "common/colourText.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    ColourValue colour;
    const char *text;
};

// A colour's number holds blue, green and red from its high byte down.
const Row rows[] = {
    {0, "#000000"},        {255, "#FF0000"},      {0x00FF00, "#00FF00"}, {0xFF0000, "#0000FF"},
    {16777215, "#FFFFFF"}, {0x030201, "#010203"}, {16776960, "#00FFFF"}, {33023, "#FF8000"},
};

TEST(ColourText, WritesRedGreenBlueInUpperCase)
{
    for (const Row &row : rows)
        EXPECT_EQ(colourText(row.colour), QString::fromLatin1(row.text));
}

TEST(ColourText, ReadsWhatItWrote)
{
    for (const Row &row : rows)
        EXPECT_EQ(colourFromText(QString::fromLatin1(row.text)), row.colour);
}

TEST(ColourText, ReadsLowerCase)
{
    EXPECT_EQ(colourFromText(QStringLiteral("#ff8000")), 33023U);
}

TEST(ColourText, RefusesOtherTexts)
{
    for (const char *text : {"", "#", "#FFFFF", "#FFFFFFF", "FF8000", "#GG0000", "#+10000", "# 10000", "red"})
        EXPECT_FALSE(colourFromText(QString::fromLatin1(text))) << text;
}
} // namespace
