#include "common/longLines.h"

#include <QString>
#include <gtest/gtest.h>

namespace
{
TEST(LongLines, AreCountedInCharacters)
{
    const struct {
        QString text;
        qsizetype line;
        qsizetype marks;
    } rows[] = {
        {QString(), 0, 0},
        {QStringLiteral("abc\r\nde"), 3, 0},
        {QStringLiteral("a\nbcde\rf"), 4, 0},
        {QStringLiteral("a\u0301\u0301b\u0301"), 5, 2},
        {QStringLiteral("\u0301\n\u0301"), 1, 1},
    };
    for (const auto &row : rows) {
        const LineExtremes extremes = lineExtremesOf(row.text);
        EXPECT_EQ(extremes.longestLine, row.line) << qPrintable(row.text);
        EXPECT_EQ(extremes.mostMarks, row.marks) << qPrintable(row.text);
    }
}

TEST(LongLines, AreShownUpToALength)
{
    EXPECT_FALSE(hasLongLines({10'000, 0}));
    EXPECT_TRUE(hasLongLines({10'001, 0}));
    EXPECT_TRUE(canBeShown({8'000'000, 20'000}));
    EXPECT_FALSE(canBeShown({8'000'001, 0}));
    EXPECT_FALSE(canBeShown({0, 20'001}));
}
} // namespace
