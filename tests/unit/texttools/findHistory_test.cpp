#include "texttools/frmFind.h"

#include <gtest/gtest.h>

namespace
{
QStringList rows(int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all += QString::number(i);
    return all;
}

TEST(FindHistory, TakesANewTextToTheTop)
{
    EXPECT_EQ(withHistory({}, QStringLiteral("a")), QStringList({QStringLiteral("a")}));
    EXPECT_EQ(withHistory(rows(2), QStringLiteral("a")).join(u' '), QStringLiteral("a 0 1"));
}

TEST(FindHistory, LeavesAKnownTextWhereItIs)
{
    EXPECT_EQ(withHistory(rows(3), QStringLiteral("2")), rows(3));
    QStringList letters{QStringLiteral("a")};
    EXPECT_EQ(withHistory(letters, QStringLiteral("A")).size(), 2); // case counts
}

/// Rows go when there are more than fifteen, and then two of them.
TEST(FindHistory, DropsItsOldestRows)
{
    EXPECT_EQ(withHistory(rows(15), QStringLiteral("a")), QStringList({QStringLiteral("a")}) + rows(15));
    EXPECT_EQ(withHistory(rows(16), QStringLiteral("a")), QStringList({QStringLiteral("a")}) + rows(14));
    // The sixteenth row is not looked at.
    EXPECT_EQ(withHistory(rows(16), QStringLiteral("15")), QStringList({QStringLiteral("15")}) + rows(14));
}
} // namespace
