#include "common/replaceText.h"

#include <gtest/gtest.h>

namespace
{
struct PlaceRow {
    const char *before;
    const char *after;
    qsizetype place;
    qsizetype expected;
};

TEST(PlaceAfterReplacing, StaysWithItsText)
{
    const PlaceRow rows[] = {
        {"abcdef", "abcdef", 3, 3}, // nothing was replaced
        {"ab-cd", "ab+++cd", 2, 2}, // before it
        {"ab-cd", "ab+++cd", 3, 5}, // behind it
        {"ab-cd", "ab+++cd", 5, 7}, // at the end
        {"ab---cd", "ab+cd", 4, 3}, // inside of it
        {"ab---cd", "abcd", 4, 2},  // inside of what has gone
        {"aa", "aaa", 1, 1},        // the same character on both sides
        {"", "abc", 0, 0},          {"abc", "", 2, 0},
    };
    for (const PlaceRow &row : rows)
        EXPECT_EQ(placeAfterReplacing(QLatin1String(row.before), QLatin1String(row.after), row.place), row.expected)
            << row.before << " " << row.after << " " << row.place;
}
} // namespace
