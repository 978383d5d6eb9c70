#include "common/text.h"

#include <gtest/gtest.h>

namespace
{
struct FindRow {
    const char *text;
    const char *what;
    qsizetype start;
    std::optional<qsizetype> result;
};

TEST(Find, CountsFromOneAndFailsBelowIt)
{
    const FindRow rows[] = {
        {"abcabc", "b", 1, 2},  {"abcabc", "b", 3, 5},  {"abcabc", "b", 6, 0},  {"abc", "c", 3, 3},
        {"abc", "c", 4, 0},     {"abc", "a", 0, {}},    {"abc", "a", -1, {}},   {"", "a", 1, 0},
        {"abc", "", 2, 2},      {"abc", "B", 1, 0},     {"abcabc", "bc", 1, 2}, {"abcabc", "bc", 3, 5},
        {"abcabc", "ab", 4, 4}, {"abcabc", "ca", 4, 0}, {"aab", "ab", 1, 2},    {"aaa", "aa", 2, 2},
        {"aaa", "aa", 3, 0},    {"a", "aa", 1, 0},      {"ab", "ab", 1, 1},
    };
    for (const FindRow &row : rows)
        EXPECT_EQ(Find(QString::fromUtf8(row.text), QString::fromUtf8(row.what), row.start), row.result)
            << row.text << ' ' << row.what << ' ' << row.start;
}

TEST(FindBack, FindsTheLastPlaceThatEndsAtTheStart)
{
    const FindRow rows[] = {
        {"abcabc", "b", 6, 5}, {"abcabc", "b", 4, 2}, {"abcabc", "b", 1, 0}, {"abcabc", "bc", 5, 2},
        {"abc", "c", 3, 3},    {"abc", "c", 4, 0},    {"abc", "a", 0, {}},   {"abc", "", 2, 2},
    };
    for (const FindRow &row : rows)
        EXPECT_EQ(FindBack(QString::fromUtf8(row.text), QString::fromUtf8(row.what), row.start), row.result)
            << row.text << ' ' << row.what << ' ' << row.start;
    EXPECT_EQ(FindBack(u"abcabc", u"b"), 5);
}

TEST(Mid, CutsFromAOneBasedStart)
{
    EXPECT_EQ(Mid(u"abcdef", 2, 3), QStringLiteral("bcd"));
    EXPECT_EQ(Mid(u"abcdef", 5, 9), QStringLiteral("ef"));
    EXPECT_EQ(Mid(u"abcdef", 4), QStringLiteral("def"));
    EXPECT_EQ(Mid(u"abc", 4, 1), QString());
    EXPECT_EQ(Mid(u"abc", 0, 1), std::nullopt);
    EXPECT_EQ(Mid(u"abc", 1, -1), std::nullopt);
}

TEST(Trim, TakesBlanksOnly)
{
    EXPECT_EQ(Trim(u"  a b "), QStringLiteral("a b"));
    EXPECT_EQ(Trim(u"\t a"), QStringLiteral("\t a"));
    EXPECT_EQ(Trim(u"   "), QString());
}

TEST(WithCrLf, MakesEveryBreakTwoCharacters)
{
    EXPECT_EQ(withCrLf(QStringLiteral("a\rb\nc\r\nd\n\re")), QStringLiteral("a\r\nb\r\nc\r\nd\r\n\r\ne"));
}

TEST(LCase, KeepsEveryPosition)
{
    EXPECT_EQ(LCase(u"aZ[@\u00C4\u0130x\r\n"), QStringLiteral("az[@\u00E4\u0130x\r\n"));
    EXPECT_EQ(LCase(QStringView()), QString());
}
} // namespace
