#include "texttools/rootConversion.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

struct Row {
    const char *text;
    const char *result;
    qsizetype count;
    qsizetype caret;
};

TEST(RootConversion, TurnsLocalLinksIntoInternetLinks)
{
    const RootConversion toInternet{q("C:\\site\\"), q("http://h/"), u'\\', u'/'};
    const Row rows[] = {
        {"<a href=\"C:\\site\\a\\b.htm\">", "<a href=\"http://h/a/b.htm\">", 1, 26}, // behind the link's closing quote
        {"<a href=\"c:\\SITE\\a.htm\">", "<a href=\"http://h/a.htm\">", 1, 18},      // in any case of letters
        {"see C:\\site\\a\\b", "see http://h/a\\b", 1, 13},                          // outside quotes: no separators
        {"nothing", "nothing", 0, 0},
        // What stands between two links is in none of them.
        {"<a href=\"x\">C:\\site\\a\\b</a><a href=\"y\">", "<a href=\"x\">http://h/a\\b</a><a href=\"y\">", 1, 21},
        {"\"a\r\nC:\\site\\a\\b\"", "\"a\r\nhttp://h/a\\b\"", 1, 13},
        // Two roots in one link are both converted.
        {"\"C:\\site\\a\\b?C:\\site\\c\"", "\"http://h/a/b?http://h/c\"", 2, 23},
        {"\"C:\\site\\a\" \"C:\\site\\b\\c\"", "\"http://h/a\" \"http://h/b/c\"", 2, 27},
    };
    for (const Row &row : rows)
        EXPECT_EQ(convertRoot(q(row.text), toInternet), (ConvertedText{q(row.result), row.count, row.caret}))
            << row.text;
}

TEST(RootConversion, TurnsInternetLinksIntoLocalLinks)
{
    const RootConversion toLocal{q("http://h/"), q("C:\\site\\"), u'/', u'\\'};
    EXPECT_EQ(convertRoot(q("<a href=\"HTTP://h/a/b.htm\">"), toLocal),
              (ConvertedText{q("<a href=\"C:\\site\\a\\b.htm\">"), 1, 25}));
}

TEST(RootConversion, LeavesTheSeparatorsOfNativePaths)
{
    const RootConversion toInternet{q("/home/me/site/"), q("http://h/"), u'/', u'/'};
    EXPECT_EQ(convertRoot(q("\"/home/me/site/a/b.htm\""), toInternet),
              (ConvertedText{q("\"http://h/a/b.htm\""), 1, 10}));
    const RootConversion back{q("http://h/"), q("/home/me/site/"), u'/', u'/'};
    EXPECT_EQ(convertRoot(q("\"http://h/a/b.htm\""), back), (ConvertedText{q("\"/home/me/site/a/b.htm\""), 1, 15}));
}

/// A root that is part of the new one would be met again from the start of the text.
TEST(RootConversion, GoesOnBehindEachReplacement)
{
    const RootConversion longer{q("http://h/"), q("http://h/site/"), u'/', u'/'};
    EXPECT_EQ(convertRoot(q("http://h/a http://h/b"), longer),
              (ConvertedText{q("http://h/site/a http://h/site/b"), 2, 30}));
}

TEST(RootConversion, AddsAMissingSeparator)
{
    EXPECT_EQ(withSeparator(q("http://h"), u'/'), q("http://h/"));
    EXPECT_EQ(withSeparator(q("http://h/"), u'/'), q("http://h/"));
    EXPECT_EQ(withSeparator(q("C:\\site"), u'\\'), q("C:\\site\\"));
}
} // namespace
