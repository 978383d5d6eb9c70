#include "common/colouringOptions.h"

#include <gtest/gtest.h>

namespace
{
TEST(ColouringOptions, StartWithTheStoresDefaults)
{
    const ColouringOptions options;
    EXPECT_TRUE(options.ColourCodeSyntax);
    EXPECT_TRUE(options.ColourCodeHyperlink);
    EXPECT_EQ(options.ColourCodeUpdateTime, 10);
    EXPECT_EQ(options.ColourCodeTag, 8388608U);
    EXPECT_EQ(options.ColourCodeAttribute, 8421376U);
    EXPECT_EQ(options.ColourCodeValue, 8421504U);
    EXPECT_EQ(options.ColourCodeComment, 32768U);
    EXPECT_EQ(options.ColourASPCode, 128U);
    EXPECT_EQ(options.ColourCodeURL, 16711680U);
}

TEST(RefreshInterval, IsMeantToOverflowFrom33SecondsOn)
{
    EXPECT_EQ(refreshInterval(0), 0);
    EXPECT_EQ(refreshInterval(10), 10000);
    EXPECT_EQ(refreshInterval(32), 32000);
    EXPECT_EQ(refreshInterval(33), std::nullopt);
    EXPECT_EQ(refreshInterval(32767), std::nullopt);
    EXPECT_EQ(refreshInterval(-1), std::nullopt);
}
} // namespace
