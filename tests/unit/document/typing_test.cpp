#include "document/typing.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char16_t *text;
    qsizetype caret;
    qsizetype blanks;
};

TEST(LeadingBlanks, CountsTheBlanksInFrontOfTheCaretsLine)
{
    const Row rows[] = {
        {u"a\r\n      text", 13, 6}, // the line starts at 3, and the caret stands behind its text
        {u"a\r\n      text", 6, 3},  // only as far as the caret
        {u"a\r\n\t  text", 10, 0},   // a tab is no blank
        {u"a\r\nb", 4, 0},
        {u"a\r\n", 3, 0},
        {u"   text", 7, 2}, // the first line's first character is not looked at
        {u"x  text", 7, 2},
        {u"   text", 0, 0}, // the search fails at the very start
        {u"", 0, 0},
        {u"a\r\n    \r\n  b", 12, 2},
    };
    for (const Row &row : rows)
        EXPECT_EQ(leadingBlanksBefore(row.text, row.caret), row.blanks) << row.caret;
}
} // namespace
