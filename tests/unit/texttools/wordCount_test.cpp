#include "texttools/wordCount.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    TextCounts counts; ///< words, characters, elements, hyperlinks
};

TEST(WordCount, CountsLineByLineBesideTheTags)
{
    const Row rows[] = {
        {"", {0, 0, 0, 0}},
        {"a  b", {2, 4, 0, 0}},
        {"one two three", {3, 13, 0, 0}},
        {"  one two  ", {2, 7, 0, 0}}, // trimmed
        {"a", {0, 1, 0, 0}},           // a line of one character has no word
        {"a\r\nb", {0, 2, 0, 0}},      // nor has each of two
        {"one\r\ntwo", {2, 6, 0, 0}},  // the line feed is no character of a line
        {"\r\n\r\n", {0, 0, 0, 0}},
        {"<p>one <b>two</b></p>", {2, 7, 4, 0}},
        {"one<br>two", {1, 6, 1, 0}},         // a tag parts no words
        {"<p\r\nclass=a>one", {2, 13, 1, 0}}, // a tag over two lines is text: "<p" and "class=a>one"
        {"a < b", {3, 5, 1, 0}},
        {"one\ttwo", {1, 7, 0, 0}}, // a tab parts no words and is not trimmed
        {"\tx", {1, 2, 0, 0}},
        {"http: https: news: file:// ftp: mailto:", {6, 39, 0, 6}},
        {"HTTP: file:/ Mailto:", {3, 20, 0, 0}}, // exact codes only
        {"<a href=\"http://a/http://b\">x y</a>", {2, 3, 2, 2}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(countText(QString::fromUtf8(row.text)), row.counts) << row.text;
}
} // namespace
