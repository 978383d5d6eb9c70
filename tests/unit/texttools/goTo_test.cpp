#include "texttools/goTo.h"

#include <gtest/gtest.h>

namespace
{
TEST(GoTo, FindsTheStartOfALine)
{
    const QString text = QStringLiteral("one\r\n\r\nthree\r\nfour");
    EXPECT_EQ(caretOfLine(text, 1), 0);
    EXPECT_EQ(caretOfLine(text, 2), 5);
    EXPECT_EQ(caretOfLine(text, 3), 7);
    EXPECT_EQ(caretOfLine(text, 4), 14); // the last line, which has no break
    EXPECT_EQ(caretOfLine(text, 5), 18);
    EXPECT_EQ(caretOfLine(QString(), 1), 0);
    EXPECT_EQ(caretOfLine(QStringLiteral("one\r\n"), 2), 5);
}

TEST(GoTo, ReadsNumbersOfAnyLength)
{
    EXPECT_EQ(numberIn(QString()), std::nullopt);
    EXPECT_EQ(numberIn(QStringLiteral("0")), 0);
    EXPECT_EQ(numberIn(QStringLiteral("007")), 7);
    EXPECT_EQ(numberIn(QStringLiteral("2147483648")), 2147483648);
    EXPECT_GT(*numberIn(QString(40, u'9')), 2147483648);
}
} // namespace
