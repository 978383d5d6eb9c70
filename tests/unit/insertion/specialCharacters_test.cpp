#include "insertion/characterEntity.h"
#include "insertion/modColourProcesses.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{
QString entityOf(int code)
{
    return characterEntity(QChar(code));
}
} // namespace

TEST(CharacterEntities, areTheCodesOfTheirCharacters)
{
    EXPECT_EQ(entityOf(32), QStringLiteral("$#160;")) << "a dollar sign, by intent";
    for (int code = 33; code <= 126; ++code)
        EXPECT_EQ(entityOf(code), QStringLiteral("&#%1;").arg(code));
    for (int code = 127; code <= 160; ++code)
        EXPECT_EQ(entityOf(code), QString()) << code;
    for (int code = 161; code <= 251; ++code)
        EXPECT_EQ(entityOf(code), QStringLiteral("&#%1;").arg(code));
    for (int code = 252; code <= 255; ++code)
        EXPECT_EQ(entityOf(code), QStringLiteral("&#%1").arg(code)) << "no semicolon, by intent";
    for (const int code : {0, 31, 256, 0x4E2D})
        EXPECT_EQ(entityOf(code), QString()) << code;
}

TEST(SafeColours, areAllMixturesOfSixStepsEachOnce)
{
    const QList<ColourValue> colours = safeColours();
    EXPECT_EQ(colours.size(), 216);
    EXPECT_EQ(colours.size() % SafeColumns, 0);
    QSet<ColourValue> distinct;
    for (const ColourValue colour : colours) {
        distinct.insert(colour);
        for (const int part : {redOf(colour), greenOf(colour), blueOf(colour)})
            EXPECT_EQ(part % 0x33, 0);
    }
    EXPECT_EQ(distinct.size(), 216);
}

TEST(SafeColours, lieInSixBlocksOfOneRed)
{
    const QList<ColourValue> colours = safeColours();
    EXPECT_EQ(colours[0], colourOf(0, 0, 0));
    EXPECT_EQ(colours[5], colourOf(0, 0xFF, 0));
    EXPECT_EQ(colours[6], colourOf(0x33, 0, 0));
    EXPECT_EQ(colours[SafeColumns], colourOf(0, 0, 0x33));
    EXPECT_EQ(colours[6 * SafeColumns], colourOf(0x99, 0, 0));
    EXPECT_EQ(colours.constLast(), colourOf(0xFF, 0xFF, 0xFF));
}

TEST(WideColours, holdGreysAndHuesInWholeRows)
{
    const QList<ColourValue> colours = wideColours();
    EXPECT_EQ(colours.size() % WideColumns, 0);
    EXPECT_EQ(colours.constFirst(), colourOf(0, 0, 0));
    EXPECT_EQ(colours[WideColumns - 1], colourOf(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(colours[5 * WideColumns], colourOf(0xFF, 0, 0)) << "full red, behind the four lighter rows";
    EXPECT_EQ(colours[5 * WideColumns + WideColumns / 3], colourOf(0, 0xFF, 0));
    EXPECT_EQ(colours[5 * WideColumns + 2 * WideColumns / 3], colourOf(0, 0, 0xFF));
    for (const ColourValue colour : colours)
        EXPECT_LE(colour, 0xFFFFFFU);
}
