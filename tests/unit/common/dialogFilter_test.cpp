#include "common/dialogFilter.h"

#include <gtest/gtest.h>

namespace
{
bool matches(const char *patterns, const char *name)
{
    const QList<DialogFilterRow> rows = parseDialogFilter(QStringLiteral("x|") + QString::fromUtf8(patterns));
    return rows.size() == 1 && matchesFilterRow(rows[0], QString::fromUtf8(name));
}

TEST(ParseDialogFilter, PartsRowsAtPipesAndPatternsAtSemicolons)
{
    const QString filter = QStringLiteral("All Files (*.*)|*.*|HTML Files (*.html; *.htm)|*.html;*.htm");
    const QList<DialogFilterRow> expected = {
        {QStringLiteral("All Files (*.*)"), {QStringLiteral("*.*")}},
        {QStringLiteral("HTML Files (*.html; *.htm)"), {QStringLiteral("*.html"), QStringLiteral("*.htm")}},
    };
    EXPECT_EQ(parseDialogFilter(filter), expected);
}

TEST(ParseDialogFilter, KeepsRowsWithEqualPatternsApart)
{
    const QList<DialogFilterRow> rows = parseDialogFilter(QStringLiteral("Text|*.txt|Unicode Text|*.txt"));
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].patterns, rows[1].patterns);
    EXPECT_EQ(rows[1].description, QStringLiteral("Unicode Text"));
}

TEST(ParseDialogFilter, TakesWhatAStoreEditedByHandMayHold)
{
    EXPECT_TRUE(parseDialogFilter(QString()).isEmpty());
    const QStringList everything = {QStringLiteral("*.*")};
    EXPECT_EQ(parseDialogFilter(QStringLiteral("Alone")),
              QList<DialogFilterRow>({{QStringLiteral("Alone"), everything}}));
    EXPECT_EQ(parseDialogFilter(QStringLiteral("A|;")), QList<DialogFilterRow>({{QStringLiteral("A"), everything}}));
    const QList<DialogFilterRow> blanks = parseDialogFilter(QStringLiteral("A| *.a ; *.b "));
    ASSERT_EQ(blanks.size(), 1);
    EXPECT_EQ(blanks[0].patterns, QStringList({QStringLiteral("*.a"), QStringLiteral("*.b")}));
}

TEST(MatchesFilterRow, GoesByThePatterns)
{
    EXPECT_TRUE(matches("*.*", "a.htm"));
    EXPECT_TRUE(matches("*.*", "README")); // every name, not only those with a dot
    EXPECT_TRUE(matches("*.html;*.htm", "a.htm"));
    EXPECT_TRUE(matches("*.html;*.htm", "A.HTML"));
    EXPECT_FALSE(matches("*.html;*.htm", "a.shtml.bak"));
    EXPECT_FALSE(matches("*.htm", "htm"));
    EXPECT_TRUE(matches("a?c*.t", "abcd.b.t"));
    EXPECT_FALSE(matches("a?c", "ac"));
    EXPECT_TRUE(matches("*a*b", "xaab"));
    EXPECT_TRUE(matches("x[1].gif", "x[1].gif"));
    EXPECT_FALSE(matches("x[1].gif", "x1.gif"));
}
} // namespace
