#include "insertion/frmFont.h"
#include "insertion/frmInsCodeComment.h"
#include "insertion/frmInsHorizontalRule.h"
#include "insertion/frmInsList.h"
#include "markupReader.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

struct RuleRow {
    RuleFields fields;
    const char *text;
};
} // namespace

TEST(RuleMarkup, eachFieldGivesItsAttribute)
{
    const RuleRow rows[] = {
        {{}, "<hr>"},
        {{.align = str("Left")}, "<hr align=\"left\">"},
        {{.align = str("Center")}, "<hr align=\"center\">"},
        {{.align = str("Right")}, "<hr align=\"right\">"},
        {{.noShade = true}, "<hr noshade>"},
        {{.size = str("3")}, "<hr size=\"3\">"},
        {{.width = str("200")}, "<hr width=\"200\">"},
        {{.width = str("50"), .widthInPercent = true}, "<hr width=\"50%\">"},
        {{.widthInPercent = true}, "<hr>"},
        {{.size = str("3"), .widthInPercent = true}, "<hr size=\"3\">"},
        {{.specifySize = false, .size = str("3"), .width = str("4")}, "<hr>"},
        {{.size = str("1234567890")}, "<hr size=\"1234567890\">"},
        {{.colour = str("#FF0000")}, "<hr color=\"#FF0000\">"},
        {{.align = str("Center"),
          .noShade = true,
          .size = str("2"),
          .width = str("80"),
          .widthInPercent = true,
          .colour = str("#000000")},
         "<hr align=\"center\" noshade size=\"2\" width=\"80%\" color=\"#000000\">"},
    };
    for (const RuleRow &row : rows)
        EXPECT_EQ(ruleMarkup(row.fields), str(row.text));
}

TEST(RuleMarkup, aRandomRuleReadsBackAsItsFields)
{
    QRandomGenerator random(65);
    for (int i = 0; i < 200; ++i) {
        const auto maybeNumber = [&random] {
            return random.bounded(3) == 0 ? QString() : QString::number(random.bounded(2000));
        };
        const RuleFields fields{.noShade = random.bounded(2) == 1,
                                .specifySize = random.bounded(2) == 1,
                                .size = maybeNumber(),
                                .width = maybeNumber()};
        const ReadElement rule = elementsOf(ruleMarkup(fields)).value(0);
        EXPECT_EQ(rule.name, str("hr"));
        EXPECT_EQ(rule.attributes.contains(str("noshade")), fields.noShade);
        EXPECT_EQ(rule.attributes.contains(str("size")), fields.specifySize && !fields.size.isEmpty());
        EXPECT_EQ(rule.attributes.value(str("size")), fields.specifySize ? fields.size : QString());
        EXPECT_EQ(rule.attributes.value(str("width")), fields.specifySize ? fields.width : QString());
    }
}

TEST(ListMarkup, eachPictureHasItsElementAndType)
{
    const struct {
        int picture;
        const char *text;
    } rows[] = {
        {0, "<ul type=\"disc\">\r\n    <li></li>\r\n</ul>"},   {1, "<ul type=\"circle\">\r\n    <li></li>\r\n</ul>"},
        {2, "<ul type=\"square\">\r\n    <li></li>\r\n</ul>"}, {3, "<ol type=\"1\">\r\n    <li></li>\r\n</ol>"},
        {4, "<ol type=\"a\">\r\n    <li></li>\r\n</ol>"},      {5, "<ol type=\"A\">\r\n    <li></li>\r\n</ol>"},
        {6, "<ol type=\"i\">\r\n    <li></li>\r\n</ol>"},      {7, "<ol type=\"I\">\r\n    <li></li>\r\n</ol>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(listMarkup({.picture = row.picture}), str(row.text));
}

TEST(ListMarkup, hasAsManyItemsAsItsSizeSays)
{
    EXPECT_EQ(listMarkup({.compact = true, .size = str("3")}),
              str("<ul type=\"disc\" compact>\r\n    <li></li>\r\n    <li></li>\r\n    <li></li>\r\n</ul>"));
    for (const char *none : {"", "0", "two", "-3"})
        EXPECT_EQ(listMarkup({.size = str(none)}), str("<ul type=\"disc\">\r\n</ul>")) << none;
    EXPECT_EQ(elementsOf(listMarkup({.picture = 7, .size = str("999")})).size(), 1000);
}

TEST(CommentMarkup, standsOnItsOwnLinesOnlyIfItHasMoreThanOne)
{
    EXPECT_EQ(commentMarkup(str("note")), str("<!--note-->"));
    EXPECT_EQ(commentMarkup({}), str("<!---->"));
    EXPECT_EQ(commentMarkup(str("one\r\ntwo")), str("<!--\r\none\r\ntwo\r\n-->"));
    EXPECT_EQ(commentMarkup(str("one\r\n")), str("<!--\r\none\r\n\r\n-->"));
    EXPECT_EQ(commentMarkup(str("a --> b")), str("<!--a --> b-->")) << "written as it stands";
}

TEST(FontTags, endTagsStandInTheOrderOfTheirOpeningOnesByIntent)
{
    const struct {
        FontFields fields;
        const char *opening;
        const char *closing;
    } rows[] = {
        {{}, "", ""},
        {{.bold = true}, "<b>", "</b>"},
        {{.face = str("Georgia")}, "<font face=\"Georgia\">", "</font>"},
        {{.size = str("14")}, "<font size=4>", "</font>"},
        {{.size = str("15")}, "<font size=4 style=\"font-size: 15pt\">", "</font>"},
        {{.size = str("x")}, "", ""},
        {{.colour = str("#010000")}, "", ""},
        {{.colour = str("#000000")}, "<font color=\"#000000\">", "</font>"},
        {{.face = str("A"), .size = str("7"), .colour = str("#00FF00")},
         "<font face=\"A\" size=1 color=\"#00FF00\">",
         "</font>"},
        {{.face = str("A"), .bold = true, .italic = true, .underline = true, .strike = true, .typewriter = true},
         "<font face=\"A\"><b><i><u><strike><tt>",
         "</b></i></u></strike></tt></font>"},
        {{.italic = true, .typewriter = true}, "<i><tt>", "</i></tt>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(fontTags(row.fields), (FontTags{str(row.opening), str(row.closing)}));
}
