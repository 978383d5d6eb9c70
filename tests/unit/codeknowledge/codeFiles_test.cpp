#include "codeknowledge/codeFiles.h"

#include <gtest/gtest.h>

namespace
{
QString str(const char16_t *text)
{
    return QString::fromUtf16(text);
}

TEST(HtmlLine, CountsItsMarksWhereverTheyStand)
{
    const struct {
        const char16_t *line;
        int depth;
        bool deprecated;
        const char16_t *text;
    } rows[] = {
        {u"\u00BBimg", 1, false, u"img"},
        {u"\u00ABfont", 1, true, u"font"},
        {u"\u00BB\u00ABx", 2, true, u"x"}, // a deprecated attribute, no deprecated element
        {u"\u00AB\u00BBx", 2, true, u"x"},
        {u"\u00BB\u00BB\u00ABcenter", 3, true, u"center"},
        {u"a\u00BBb\u00ABc", 2, true, u"abc"},
        {u"plain", 0, false, u"plain"},
        {u"", 0, false, u""},
    };
    for (const auto &row : rows) {
        const HtmlLine line = htmlLine(row.line);
        EXPECT_EQ(line.depth, row.depth);
        EXPECT_EQ(line.deprecated, row.deprecated);
        EXPECT_EQ(line.text, str(row.text));
    }
}

TEST(HtmlLine, IsAValueAtEveryDepthButTheFirstTwo)
{
    EXPECT_EQ(htmlLine(u"\u00BBa").kind(), HtmlLine::Element);
    EXPECT_EQ(htmlLine(u"\u00BB\u00BBa").kind(), HtmlLine::Attribute);
    EXPECT_EQ(htmlLine(u"a").kind(), HtmlLine::Value);
    EXPECT_EQ(htmlLine(u"\u00BB\u00BB\u00BBa").kind(), HtmlLine::Value);
    EXPECT_EQ(htmlLine(u"\u00BB\u00BB\u00BB\u00BBa").kind(), HtmlLine::Value);
}

TEST(AttributeText, IsSplitAtItsFirstEqualsWhichStaysWithTheName)
{
    const struct {
        const char16_t *text;
        const char16_t *name;
        const char16_t *hint;
    } rows[] = {
        {u"a=b=c", u"a=", u"b=c"}, {u"a=", u"a=", u""}, {u"nowrap", u"nowrap", u""},
        {u"=x", u"=", u"x"},       {u"", u"", u""},
    };
    for (const auto &row : rows) {
        const AttributeText attribute = attributeText(str(row.text));
        EXPECT_EQ(attribute.name, str(row.name));
        EXPECT_EQ(attribute.hint, str(row.hint));
    }
}

TEST(CssLine, IsAValueBehindTwoMarksOnly)
{
    const struct {
        const char16_t *line;
        bool isValue;
        const char16_t *text;
    } rows[] = {
        {u"\u00BBcolor", false, u"color"},          {u"xcolor", false, u"color"}, {u"\u00BB\u00BBred", true, u"red"},
        {u"\u00BB\u00ABred", false, u"\u00ABred"},  {u"\u00BB\u00BB", true, u""}, {u"", false, u""},
        {u"\u00BB\u00BB\u00BBa", true, u"\u00BBa"},
    };
    for (const auto &row : rows) {
        const CssLine line = cssLine(row.line);
        EXPECT_EQ(line.isValue, row.isValue);
        EXPECT_EQ(line.text, str(row.text));
    }
}
} // namespace
