#include "surface/textMarks.h"

#include <gtest/gtest.h>

namespace
{
QList<qsizetype> startsAt(const TextMarks &marks, qsizetype from, qsizetype to)
{
    QList<qsizetype> starts;
    marks.forEachAt(from, to, [&](const MarkedRange &mark) { starts.append(mark.start); });
    return starts;
}

TEST(TextMarks, ThoseThatTouchAPlaceAreFoundHoweverLongTheyAre)
{
    TextMarks marks;
    marks.set(MarkOwner::Search, {{10, 2}, {0, 50}, {30, 1}}, 100);
    EXPECT_EQ(startsAt(marks, 11, 11), QList<qsizetype>({0, 10}));
    EXPECT_EQ(startsAt(marks, 31, 40), QList<qsizetype>({0, 30}));
    EXPECT_EQ(startsAt(marks, 51, 60), QList<qsizetype>());
    marks.set(MarkOwner::Tags, {{52, 0}}, 100);
    EXPECT_EQ(startsAt(marks, 51, 60), QList<qsizetype>({52}));
}

TEST(TextMarks, WhatLooksDifferentIsWhatCameAndWhatWent)
{
    TextMarks marks;
    marks.set(MarkOwner::Search, {{0, 1}, {5, 1}, {9, 1}}, 100);
    const std::vector<TextStretch> changed = marks.set(MarkOwner::Search, {{0, 1}, {6, 2}, {9, 1}}, 100);
    ASSERT_EQ(changed.size(), 2U);
    EXPECT_EQ(std::pair(changed[0].from, changed[0].to), std::pair(qsizetype(5), qsizetype(6)));
    EXPECT_EQ(std::pair(changed[1].from, changed[1].to), std::pair(qsizetype(6), qsizetype(8)));
    EXPECT_TRUE(marks.set(MarkOwner::Search, {{0, 1}, {6, 2}, {9, 1}}, 100).empty());
    EXPECT_TRUE(marks.set(MarkOwner::Tags, {}, 100).empty());
    EXPECT_EQ(marks.all().size(), 3);
}

TEST(TextMarks, AnEditMovesWhatIsBehindItAndTakesWhatLiesInIt)
{
    TextMarks marks;
    marks.set(MarkOwner::Search, {{0, 4}, {5, 2}, {8, 4}, {20, 5}}, 100);
    marks.move(3, 10, 1); // takes the second, the end of the first and the front of the third
    EXPECT_EQ(marks.all(), QList<MarkedRange>({{0, 3}, {4, 2}, {14, 5}}));
    marks.move(2, 2, 10); // within the first
    EXPECT_EQ(marks.all(), QList<MarkedRange>({{0, 13}, {14, 2}, {24, 5}}));
    marks.clear();
    EXPECT_TRUE(marks.isEmpty());
}
} // namespace
