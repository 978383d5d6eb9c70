#include "common/tags.h"

#include <gtest/gtest.h>

namespace
{
const QString page = QStringLiteral("<p>one</p> 2 < 3 <b>two</b>");
//                                   0         1         2
//                                   0123456789012345678901234567
} // namespace

TEST(NextTag, theTagAtThePositionIsTheNext)
{
    EXPECT_EQ(NextTagFrom(0, page), (TagSpan{QStringLiteral("<p>"), 0, 3}));
}

TEST(NextTag, aTagThatStartsBeforeThePositionIsPassed)
{
    EXPECT_EQ(NextTagFrom(1, page), (TagSpan{QStringLiteral("</p>"), 6, 4}));
}

TEST(NextTag, aBareLessThanReachesToTheNextGreaterThan)
{
    EXPECT_EQ(NextTagFrom(10, page), (TagSpan{QStringLiteral("< 3 <b>"), 13, 7}));
}

TEST(NextTag, thereIsNoneBehindTheLast)
{
    EXPECT_EQ(NextTagFrom(24, page), std::nullopt);
    EXPECT_EQ(NextTagFrom(page.size(), page), std::nullopt);
}

TEST(NextTag, oneWithoutItsEndIsNone)
{
    EXPECT_EQ(NextTagFrom(0, QStringLiteral("text <b")), std::nullopt);
}
