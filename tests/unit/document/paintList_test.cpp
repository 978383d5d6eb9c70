#include "document/paintList.h"

#include <gtest/gtest.h>

namespace
{
TEST(PaintList, LeavesOutEmptyRangesAndCutsAtTheEnd)
{
    PaintList paints(5);
    paints.add(1, 0, TagPaint);
    paints.add(1, -2, TagPaint);
    paints.add(5, 3, TagPaint);
    EXPECT_TRUE(paints.ranges().empty());
    EXPECT_TRUE(paints.visible().empty());
    paints.add(3, 9, TagPaint);
    EXPECT_EQ(paints.ranges(), (std::vector<PaintRange>{{3, 2, TagPaint}}));
}

TEST(PaintList, ShowsThroughWhatAPaintLeavesAsItIs)
{
    PaintList paints(10);
    paints.add(0, 10, DefaultPaint);
    paints.add(2, 6, TagPaint);
    paints.add(4, 2, ValuePaint); // keeps the tag's weight
    paints.add(5, 4, LinkPaint);
    const std::vector<PaintRange> expected = {
        {0, 2, {ColourRole::Text, false, false}}, {2, 2, {ColourRole::Tag, true, false}},
        {4, 1, {ColourRole::Value, true, false}}, {5, 3, {ColourRole::Link, true, true}},
        {8, 1, {ColourRole::Link, false, true}},  {9, 1, {ColourRole::Text, false, false}},
    };
    EXPECT_EQ(paints.visible(), expected);
}

TEST(PaintList, JoinsNeighboursThatLookTheSameAndLeavesOutTheUnpainted)
{
    PaintList paints(8);
    paints.add(1, 2, TagPaint);
    paints.add(3, 2, TagPaint);
    paints.add(6, 1, LargeDocumentPaint);
    const std::vector<PaintRange> expected = {{1, 4, TagPaint}, {6, 1, LargeDocumentPaint}};
    EXPECT_EQ(paints.visible(), expected);
}

TEST(PaintList, KeepsItsLookWhenItIsPaintedWithoutEnd)
{
    // More paints than are kept: those laid first give way to what can be seen of them.
    PaintList paints(6);
    paints.add(0, 6, DefaultPaint);
    paints.add(1, 4, TagPaint);
    for (int i = 0; i < 1000; ++i) {
        paints.add(2, 2, AttributePaint);
        paints.add(3, 2, LinkPaint);
    }
    EXPECT_LT(paints.ranges().size(), 100U);
    const std::vector<PaintRange> expected = {
        {0, 1, DefaultPaint},
        {1, 1, {ColourRole::Tag, true, false}},
        {2, 1, {ColourRole::Attribute, false, false}},
        {3, 1, {ColourRole::Link, false, true}},
        {4, 1, {ColourRole::Link, true, true}},
        {5, 1, DefaultPaint},
    };
    EXPECT_EQ(paints.visible(), expected);
}

TEST(PaintList, GivesEachPaintTheColourOfItsOption)
{
    const ColouringOptions options{true, true, 10, 1, 2, 3, 4, 5, 6};
    EXPECT_EQ(textFormat(DefaultPaint, options), (TextFormat{WindowTextColour, false, false}));
    EXPECT_EQ(textFormat(TagPaint, options), (TextFormat{1, true, {}}));
    EXPECT_EQ(textFormat(AttributePaint, options), (TextFormat{2, false, {}}));
    EXPECT_EQ(textFormat(ValuePaint, options), (TextFormat{3, {}, {}}));
    EXPECT_EQ(textFormat(CommentPaint, options), (TextFormat{4, false, {}}));
    EXPECT_EQ(textFormat(AspCodePaint, options), (TextFormat{5, false, {}}));
    EXPECT_EQ(textFormat(LinkPaint, options), (TextFormat{6, {}, true}));
    EXPECT_EQ(textFormat(FirstCharacterPaint, options), (TextFormat{WindowTextColour, {}, {}}));
    EXPECT_EQ(textFormat(LargeDocumentPaint, options), (TextFormat{WindowTextColour, {}, false}));
    EXPECT_EQ(textFormat(Paint(), options), TextFormat());
}

TEST(PaintList, GivesFormatsForASurface)
{
    PaintList paints(4);
    paints.add(0, 4, DefaultPaint);
    paints.add(1, 2, LinkPaint);
    const QList<FormatRange> formats = paints.formats({});
    ASSERT_EQ(formats.size(), 3);
    EXPECT_EQ(formats[1].start, 1);
    EXPECT_EQ(formats[1].length, 2);
    EXPECT_EQ(formats[1].format, (TextFormat{0xFF0000, false, true}));
}
} // namespace
