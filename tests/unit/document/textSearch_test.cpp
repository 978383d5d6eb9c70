#include "document/textSearch.h"

#include <gtest/gtest.h>

namespace
{
TEST(FindInLCase, FindsInAnyCase)
{
    EXPECT_EQ(FindInLCase(u"a</P></p>", u"</p>", 1), 2);
    EXPECT_EQ(FindInLCase(u"a</P></p>", u"</p>", 3), 6);
    EXPECT_EQ(FindInLCase(u"a</P></p>", u"</p>", 7), 0);
    EXPECT_EQ(FindInLCase(u"w.WwW.a", u"www.", 1), 3);
    EXPECT_EQ(FindInLCase(u"ww.", u"www.", 1), 0);
    EXPECT_EQ(FindInLCase(u"HTT", u"http:", 1), 0);
    EXPECT_EQ(FindInLCase(u"xhttp:", u"http:", 2), 2);
    EXPECT_EQ(FindInLCase(u"xhttp:", u"http:", 3), 0);
    EXPECT_EQ(FindInLCase(u"</p", u"</p>", 1), 0);
    EXPECT_EQ(FindInLCase(u"", u"</p>", 1), 0);
    EXPECT_EQ(FindInLCase(u"</p>", u"</p>", 40), 0);
}

TEST(NextOccurrence, AnswersEveryStartRightInAnyOrder)
{
    const QString text = QStringLiteral("ab>c>>d");
    const qsizetype expected[] = {3, 3, 3, 5, 5, 6, 0, 0};
    NextOccurrence upwards(text, u">");
    for (qsizetype start = 1; start <= 8; ++start)
        EXPECT_EQ(upwards.Find(start), expected[start - 1]) << start;
    NextOccurrence downwards(text, u">");
    for (qsizetype start = 8; start >= 1; --start)
        EXPECT_EQ(downwards.Find(start), expected[start - 1]) << start;
}

TEST(NextOccurrence, LooksThroughCaseWhenTold)
{
    NextOccurrence lower(u"a</P>", u"</p>", NextOccurrence::Case::Lower);
    EXPECT_EQ(lower.Find(1), 2);
    EXPECT_EQ(lower.Find(3), 0);
    NextOccurrence exact(u"a</P>", u"</p>");
    EXPECT_EQ(exact.Find(1), 0);
}
} // namespace
