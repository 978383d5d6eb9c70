#include "widgets/colourPalette.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
/// Seven colours in rows of three, so that the last row is not full.
class ColourPaletteTest : public testing::Test
{
protected:
    ColourPaletteTest()
    {
        palette.resize(100, 50); // no multiple of the rows and columns
        palette.show();
        palette.setFocus();
    }

    void click(int cell) { QTest::mouseClick(&palette, Qt::LeftButton, {}, palette.rectOf(cell).center()); }

    ColourPalette palette{{10, 20, 30, 40, 50, 60, 70}, 3};
    QSignalSpy picks{&palette, &ColourPalette::picked};
};

TEST_F(ColourPaletteTest, LeavesNoPlaceBetweenItsCells)
{
    int last = 0;
    for (int x = 0; x < 100; ++x) {
        const int cell = palette.cellAt({x, 0});
        ASSERT_GE(cell, last) << x;
        last = cell;
    }
    EXPECT_EQ(last, 2);
    EXPECT_EQ(palette.cellAt({99, 49}), -1) << "the last row has one cell";
    EXPECT_EQ(palette.cellAt({0, 49}), 6);
    EXPECT_EQ(palette.cellAt({100, 0}), -1);
    EXPECT_EQ(palette.cellAt({-1, 0}), -1);
}

TEST_F(ColourPaletteTest, PicksTheColourThatIsClicked)
{
    click(4);
    EXPECT_EQ(picks.count(), 1);
    EXPECT_EQ(palette.currentColour(), 50U);
    EXPECT_EQ(palette.accessibleDescription(), QStringLiteral("#320000"));
}

TEST_F(ColourPaletteTest, PicksNothingWhereThePressWasOnAnotherCell)
{
    QTest::mousePress(&palette, Qt::LeftButton, {}, palette.rectOf(1).center());
    QTest::mouseRelease(&palette, Qt::LeftButton, {}, palette.rectOf(2).center());
    QTest::mouseClick(&palette, Qt::RightButton, {}, palette.rectOf(2).center());
    EXPECT_EQ(picks.count(), 0);
    EXPECT_EQ(palette.currentColour(), 10U);
}

TEST_F(ColourPaletteTest, FollowsTheArrowKeysAsFarAsThereAreCells)
{
    const struct {
        Qt::Key key;
        ColourValue colour;
    } steps[] = {{Qt::Key_Left, 10}, {Qt::Key_Up, 10},   {Qt::Key_Right, 20}, {Qt::Key_Down, 50},
                 {Qt::Key_Down, 50}, {Qt::Key_Left, 40}, {Qt::Key_Down, 70},  {Qt::Key_Right, 70}};
    for (const auto &step : steps) {
        QTest::keyClick(&palette, step.key);
        EXPECT_EQ(palette.currentColour(), step.colour);
    }
    EXPECT_EQ(picks.count(), 0);
    QTest::keyClick(&palette, Qt::Key_Return);
    QTest::keyClick(&palette, Qt::Key_Space);
    EXPECT_EQ(picks.count(), 2);
    EXPECT_EQ(palette.currentColour(), 70U);
}

TEST_F(ColourPaletteTest, TellsTheColourUnderTheMouse)
{
    QSignalSpy points(&palette, &ColourPalette::pointedChanged);
    EXPECT_FALSE(palette.pointedColour());
    QTest::mouseMove(&palette, palette.rectOf(2).center());
    EXPECT_EQ(palette.pointedColour(), 30U);
    EXPECT_EQ(palette.currentColour(), 10U) << "the mouse alone chooses nothing";
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&palette, &leave);
    EXPECT_FALSE(palette.pointedColour());
    EXPECT_GE(points.count(), 2);
}
} // namespace
