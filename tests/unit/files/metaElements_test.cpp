#include "files/metaElements.h"

#include <gtest/gtest.h>

namespace
{
struct CharsetRow {
    const char *page;
    const char *expected;
};

TEST(DeclaredCharset, IsReadFromTheFirstMetaThatNamesOne)
{
    const CharsetRow rows[] = {
        {R"(<meta charset="utf-8">)", "utf-8"},
        {R"(<META CHARSET=ISO-8859-1>)", "ISO-8859-1"},
        {R"(<meta charset='windows-1252'/>)", "windows-1252"},
        {R"(<meta name="a>b" charset="utf-8">)", "utf-8"},
        {R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">)", "iso-8859-1"},
        {R"(<meta content='text/html;charset=UTF-8' http-equiv=content-type>)", "UTF-8"},
        {R"(<!-- <meta charset="utf-8"> --><meta charset="latin1">)", "latin1"},
        {R"(<meta name="author" content="A"><meta charset="utf-16">)", "utf-16"},
        {R"(<meta charset="utf-8"><meta charset="latin1">)", "utf-8"},
    };
    for (const CharsetRow &row : rows)
        EXPECT_EQ(declaredCharset(QLatin1String(row.page)), QLatin1String(row.expected)) << row.page;
}

TEST(DeclaredCharset, IsNothingWhereThereIsNone)
{
    const char *pages[] = {
        "",
        "<p>charset=utf-8</p>",
        R"(<metadata charset="utf-8">)",
        R"(<meta name="description" content="charset=utf-8">)",
        R"(<!-- <meta charset="utf-8">)",
        R"(<meta)",
    };
    for (const char *page : pages)
        EXPECT_EQ(declaredCharset(QLatin1String(page)), QString()) << page;
}

TEST(NamesEncoding, KnowsTheNamesThatPagesUse)
{
    EXPECT_TRUE(namesEncoding(QStringLiteral("UTF-8"), Encoding::Utf8));
    EXPECT_TRUE(namesEncoding(QStringLiteral(" utf8 "), Encoding::Utf8Bom));
    EXPECT_TRUE(namesEncoding(QStringLiteral("iso-8859-1"), Encoding::Windows1252));
    EXPECT_TRUE(namesEncoding(QStringLiteral("Windows-1252"), Encoding::Windows1252));
    EXPECT_TRUE(namesEncoding(QStringLiteral("us-ascii"), Encoding::Windows1252));
    EXPECT_TRUE(namesEncoding(QStringLiteral("utf-16"), Encoding::Utf16LE));
    EXPECT_TRUE(namesEncoding(QStringLiteral("utf-16"), Encoding::Utf16BE));
    EXPECT_FALSE(namesEncoding(QStringLiteral("utf-16be"), Encoding::Utf16LE));
    EXPECT_FALSE(namesEncoding(QStringLiteral("iso-8859-1"), Encoding::Utf8));
    EXPECT_FALSE(namesEncoding(QStringLiteral("utf-8"), Encoding::Windows1252));
    EXPECT_FALSE(namesEncoding(QStringLiteral("shift_jis"), Encoding::Windows1252));
}

TEST(MetaContent, IsReadUpToTheNextDoubleQuote)
{
    const QString page = QStringLiteral("<META Name=\"Author\" Content=\"Ann Other\">\r\n"
                                        "<meta name=\"keywords\" content=\"\">\r\n"
                                        "<meta  name=\"description\" content=\"two blanks\">");
    EXPECT_EQ(metaContent(page, QStringLiteral("author")), QStringLiteral("Ann Other"));
    EXPECT_EQ(metaContent(page, QStringLiteral("keywords")), QString());
    EXPECT_EQ(metaContent(page, QStringLiteral("description")), QString());
    EXPECT_EQ(metaContent(QStringLiteral("<meta name=\"author\" content=\"open"), QStringLiteral("author")), QString());
}
} // namespace
