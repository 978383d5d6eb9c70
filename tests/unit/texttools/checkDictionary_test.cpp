#include "texttools/checkDictionary.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(CheckDictionary, LooksForElementsOnlyWithoutATag)
{
    CheckDictionary dictionary;
    dictionary.add(q("«Blink"));
    dictionary.add(q("»a»Data-ID="));
    EXPECT_TRUE(dictionary.accepts(QString(), q("blink")));
    EXPECT_TRUE(dictionary.accepts(QString(), q("BLINK")));
    EXPECT_FALSE(dictionary.accepts(q("a"), q("blink")));
    EXPECT_TRUE(dictionary.accepts(q("a"), q("data-id=")));
    EXPECT_FALSE(dictionary.accepts(q("A"), q("data-id=")));
    EXPECT_FALSE(dictionary.accepts(q("b"), q("data-id=")));
    EXPECT_FALSE(dictionary.accepts(QString(), q("data-id=")));
}

TEST(CheckDictionary, ExcludesAttributesOfAnyTag)
{
    CheckDictionary dictionary;
    dictionary.exclude(q("X-Y="));
    EXPECT_TRUE(dictionary.accepts(q("a"), q("x-y=")));
    EXPECT_TRUE(dictionary.accepts(q("b"), q("x-y=")));
    EXPECT_FALSE(dictionary.accepts(QString(), q("x-y=")));
}

TEST(CheckDictionary, IgnoresWordsOfAnyKind)
{
    CheckDictionary dictionary;
    dictionary.ignore(q("Zork"));
    EXPECT_TRUE(dictionary.accepts(QString(), q("zork")));
    EXPECT_TRUE(dictionary.accepts(q("a"), q("ZORK")));
}

TEST(CheckDictionary, OtherRowsMatchNothing)
{
    CheckDictionary dictionary;
    for (const char *row : {"blink", "»blink", "»", "«", " «blink", "a»b"})
        dictionary.add(q(row));
    EXPECT_FALSE(dictionary.accepts(QString(), q("blink")));
    EXPECT_FALSE(dictionary.accepts(q("a"), q("b")));
    EXPECT_FALSE(dictionary.accepts(q("blink"), QString()));
}

TEST(CheckDictionary, WritesTheRowOfAWord)
{
    EXPECT_EQ(dictionaryRow(QString(), q("zork")), q("«zork"));
    EXPECT_EQ(dictionaryRow(q("a"), q("zork=")), q("»a»zork="));
}

TEST(CheckDictionary, PassesOverBlankLines)
{
    EXPECT_EQ(dictionaryLines(QByteArray("\xAB"
                                         "one\r\n\r\n\xBB"
                                         "a\xBBtwo\r\nthree")),
              QStringList({q("«one"), q("»a»two"), q("three")}));
    EXPECT_EQ(dictionaryLines(QByteArray()), QStringList());
}

struct Row {
    QByteArray file;
    QString line;
    QByteArray result;
};

TEST(CheckDictionary, GrowsByALineAndKeepsWhatIsThere)
{
    const Row rows[] = {
        {"", q("«zork"),
         "\xAB"
         "zork\r\n"},
        {"\xAB"
         "a\r\n",
         q("»b»c="),
         "\xAB"
         "a\r\n\xBB"
         "b\xBB"
         "c=\r\n"},
        {"one", q("two"), "one\r\ntwo\r\n"},               // a last line without an end gets one
        {"one\ntwo\n", q("three"), "one\ntwo\nthree\r\n"}, // what stands there stays as it is
        {"\xC2\xAB"
         "a\r\n",
         q("«b"),
         "\xC2\xAB"
         "a\r\n\xC2\xAB"
         "b\r\n"},                                    // a file in UTF-8 stays one
        {"one\r\n", q("α="), "one\r\n\xCE\xB1=\r\n"}, // a line that does not fit makes it one
        {"\xAB"
         "a\r\n",
         q("α="),
         "\xC2\xAB"
         "a\r\n\xCE\xB1=\r\n"},
        {"one\r\n", q("a\r\nb"), "one\r\n"}, // would read back as two
    };
    for (const Row &row : rows)
        EXPECT_EQ(withLine(row.file, row.line).toHex(' '), row.result.toHex(' ')) << row.line.toStdString();
}
} // namespace
