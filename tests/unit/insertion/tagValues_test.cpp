#include "insertion/tagValues.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *what;
    const char *text;
    QStringList expected;
};

QString str(const char *text)
{
    return QString::fromUtf8(text);
}
} // namespace

TEST(TagValues, ListsTheNamesOfMaps)
{
    const QList<Row> rows{
        {"none", "<p>A map</p>", {}},
        {"two in order", "<map name=\"nav\"></map><p>x</p><map id=\"m\" name=\"foot\">", {str("nav"), str("foot")}},
        {"the same name twice", "<map name=\"a\"><map name=\"a\">", {str("a"), str("a")}},
        {"upper case is another tag", "<MAP name=\"a\"><map name=\"b\">", {str("b")}},
        {"a tag without a name ends the list", "<map name=\"a\"><map id=\"b\"><map name=\"c\">", {str("a")}},
        {"a name without double quotes ends it", "<map name='a'><map name=\"b\">", {}},
        {"a name behind the tag is not the tag's", "<map id=\"a\"> name=\"b\">", {}},
        {"a tag that does not end ends it", "<map name=\"a\"", {}},
        {"no blank behind the word", "<map><map name=\"a\">", {str("a")}},
        {"an empty name", "<map name=\"\">", {QString()}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(tagValues(str(row.text), str("<map "), str("name"), 20), row.expected) << row.what;
}

TEST(TagValues, StopsAtItsLimit)
{
    const QString text = str("<map name=\"a\">").repeated(30);
    EXPECT_EQ(tagValues(text, str("<map "), str("name"), 20).size(), 20);
}
