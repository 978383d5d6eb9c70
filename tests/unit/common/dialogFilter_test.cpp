#include "common/dialogFilter.h"

#include <gtest/gtest.h>

namespace
{
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
} // namespace
