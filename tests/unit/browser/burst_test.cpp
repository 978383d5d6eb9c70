#include "browser/burst.h"

#include <gtest/gtest.h>

namespace
{
TEST(Burst, IsTooManyTimesWithinTheTime)
{
    Burst burst(3, 1000);
    EXPECT_FALSE(burst.happensAt(0));
    EXPECT_FALSE(burst.happensAt(500));
    EXPECT_TRUE(burst.happensAt(1000));
    EXPECT_TRUE(burst.happensAt(1400)) << "500, 1000, 1400";
}

TEST(Burst, IsNoneWhenTheTimesLieFartherApart)
{
    Burst burst(3, 1000);
    for (const qint64 moment : {0, 501, 1002, 1503, 2004, 2505})
        EXPECT_FALSE(burst.happensAt(moment)) << moment;
}

TEST(Burst, BeginsAnewWhenItIsForgotten)
{
    Burst burst(2, 1000);
    EXPECT_FALSE(burst.happensAt(0));
    burst.forget();
    EXPECT_FALSE(burst.happensAt(1));
    EXPECT_TRUE(burst.happensAt(2));
}
} // namespace
