#include "common/plainTip.h"

#include <gtest/gtest.h>

TEST(PlainTip, ShowsTagsAsTheyStand)
{
    EXPECT_EQ(plainTip(QStringLiteral("<i> is not closed.\n</i> & \"x\"")),
              QStringLiteral("<p style='white-space:pre-wrap'>&lt;i&gt; is not closed.\n&lt;/i&gt; &amp; "
                             "&quot;x&quot;</p>"));
    EXPECT_EQ(plainTip({}), QString()) << "which takes a tip away";
}
