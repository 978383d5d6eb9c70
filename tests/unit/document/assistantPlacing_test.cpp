#include "document/assistantPlacing.h"

#include <gtest/gtest.h>

namespace
{
/// A window of 800 by 600 with a margin of 20, whose lines are 15 high.
AssistantGround groundAt(int x, int y)
{
    return {.area = {800, 600}, .edit = {20, 0, 780, 600}, .caret = {x, y}, .lineHeight = 15};
}

TipText tipOf(int width, int rows = 1)
{
    return {.width = width, .widest = 900, .rowHeight = 14, .rows = [rows](int) { return rows; }};
}

TEST(PlaceOfList, IsRightOfTheCaretAndBelow)
{
    EXPECT_EQ(placeOfList(groundAt(100, 50), {200, 150}), QRect(116, 58, 200, 150));
}

TEST(PlaceOfList, GoesToTheOtherSideAtTheRightEdge)
{
    EXPECT_EQ(placeOfList(groundAt(584, 50), {200, 150}), QRect(600, 58, 200, 150)) << "it just fits";
    EXPECT_EQ(placeOfList(groundAt(585, 50), {200, 150}), QRect(385, 65, 200, 150)) << "below the word";
}

TEST(PlaceOfList, GoesAboveTheLineAtTheBottom)
{
    EXPECT_EQ(placeOfList(groundAt(100, 442), {200, 150}), QRect(116, 450, 200, 150)) << "it just fits";
    EXPECT_EQ(placeOfList(groundAt(100, 443), {200, 150}), QRect(116, 286, 200, 150)) << "443 + 8 - 150 - 15";
}

TEST(PlaceOfList, StaysInASmallWindow)
{
    AssistantGround ground = groundAt(50, 20);
    ground.area = {120, 80};
    EXPECT_EQ(placeOfList(ground, {200, 150}), QRect(0, 0, 120, 80));
}

TEST(PlaceOfTip, IsBelowTheLineAtTheCaret)
{
    EXPECT_EQ(placeOfTip(groundAt(100, 50), tipOf(300)), QRect(100, 71, 308, 21)) << "a row and a half high";
}

TEST(PlaceOfTip, GoesBackAtTheRightEdge)
{
    EXPECT_EQ(placeOfTip(groundAt(600, 50), tipOf(300)), QRect(400, 71, 308, 21));
    EXPECT_EQ(placeOfTip(groundAt(750, 50), tipOf(300)), QRect(24, 71, 308, 21)) << "not far enough: to the left edge";
    EXPECT_EQ(placeOfTip(groundAt(180, 50), tipOf(700)), QRect(24, 71, 708, 21)) << "too far: likewise";
}

TEST(PlaceOfTip, GoesAboveTheLineAtTheBottom)
{
    EXPECT_EQ(placeOfTip(groundAt(100, 558), tipOf(300)), QRect(100, 579, 308, 21)) << "it just fits";
    EXPECT_EQ(placeOfTip(groundAt(100, 559), tipOf(300)), QRect(100, 538, 308, 21));
}

TEST(PlaceOfTip, HasMoreRowsWhereTheTextIsWiderThanTheWindow)
{
    EXPECT_EQ(placeOfTip(groundAt(100, 50), tipOf(1500, 3)), QRect(24, 71, 772, 49));
}

TEST(PlaceOfTip, HasFourRowsAtMost)
{
    EXPECT_EQ(placeOfTip(groundAt(100, 50), tipOf(60000, 4)), QRect(24, 71, 772, 63)) << "21 + 3 * 14";
    EXPECT_EQ(placeOfTip(groundAt(100, 50), tipOf(60000, 90)), QRect(24, 71, 772, 63));
    EXPECT_EQ(placeOfTip(groundAt(100, 550), tipOf(60000, 90)), QRect(24, 487, 772, 63)) << "there is room above";
}

TEST(PlaceOfTip, IsNoWiderThanARowMayBe)
{
    TipText text = tipOf(500, 2);
    text.widest = 500;
    EXPECT_EQ(placeOfTip(groundAt(100, 50), text), QRect(100, 71, 508, 21)) << "it just fits";
    text.width = 501;
    EXPECT_EQ(placeOfTip(groundAt(100, 50), text), QRect(100, 71, 500, 35));
}

TEST(PlaceOfTip, LeavesTheCaretsLineToBeSeenInASmallWindow)
{
    AssistantGround ground = groundAt(100, 20);
    ground.area.setHeight(90);
    EXPECT_EQ(placeOfTip(ground, tipOf(60000, 90)), QRect(24, 41, 772, 49)) << "below, as high as there is room";
}
} // namespace
