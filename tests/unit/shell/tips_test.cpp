#include "shell/tips.h"

#include <gtest/gtest.h>

namespace
{
TEST(TipOfTheDay, IsCountedFromOne)
{
    EXPECT_EQ(tipOfTheDay(0), std::nullopt);
    EXPECT_EQ(tipOfTheDay(-1), std::nullopt);
    EXPECT_EQ(tipOfTheDay(9), QStringLiteral("Tagwrighter supports the latest version of HTML and CSS."));
    EXPECT_EQ(tipOfTheDay(20), QStringLiteral("Wizards help you to do many complex or time consuming tasks."));
}

TEST(TipOfTheDay, EndsBehindTheLastOne)
{
    int number = 1;
    while (tipOfTheDay(number)) {
        EXPECT_FALSE(tipOfTheDay(number)->isEmpty()) << number;
        ++number;
    }
    EXPECT_GT(number, 25); // there are more than those that every version has had
    EXPECT_EQ(tipOfTheDay(number + 1), std::nullopt);
}
} // namespace
