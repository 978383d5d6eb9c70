#include "codeknowledge/codeFiles.h"

#include <gtest/gtest.h>

namespace
{
QString str(const char16_t *text)
{
    return QString::fromUtf16(text);
}

/// The lines with "»" as "+" and "«" as "-", each ended by CR LF.
QString file(const char *lines)
{
    QString text = QString::fromUtf8(lines);
    text.replace(u'+', u'\u00BB').replace(u'-', u'\u00AB').replace(u'\n', QStringLiteral("\r\n"));
    return text;
}

QStringList told(const CodeBranch &branch)
{
    QStringList rows;
    for (const TreeNode &node : branch.nodes)
        rows.append(QStringLiteral("%1|%2|%3|%4").arg(node.text, node.key, node.imageKey).arg(node.parent));
    return rows;
}

const QString htmlRoot = QStringLiteral("HyperText Markup Language|html|ImgNode1|-1");
const QString cssRoot = QStringLiteral("Cascading Style Sheets|css|ImgNodeCSS1|-1");

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

TEST(HtmlCodes, MakeATreeAndThreeLists)
{
    const HtmlCodes codes =
        readHtmlCodes(file("+img\n++src=URL\n++alt=\n++-ismap\n++-align=\n++-left\n+++top\n-font\n"));
    //                                           img   src=       alt=    value     align= depth 3  depth 3 element
    EXPECT_TRUE(codes.branch.complete);
    EXPECT_EQ(told(codes.branch),
              (QStringList{htmlRoot, QStringLiteral("img||ImgNode2|0"), QStringLiteral("src=||ImgNode3|1"),
                           QStringLiteral("alt=||ImgNode3|1"), QStringLiteral("ismap||ImgDepr|3"),
                           QStringLiteral("align=||ImgDepr|3"), QStringLiteral("left||ImgDepr|3"),
                           QStringLiteral("top||ImgNode4|3"), QStringLiteral("font||ImgDepr|0")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantElements, (QStringList{QStringLiteral("<img"), QStringLiteral("<font")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantElementsFull,
              (QStringList{QStringLiteral("e<img"), QStringLiteral("d<font")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantSyntax,
              (QStringList{QStringLiteral("<img src=[URL] alt=>"), QStringLiteral("<font>")}));
}

TEST(HtmlCodes, TellDeprecatedAttributesInTheSyntaxLikeOthers)
{
    const HtmlCodes codes = readHtmlCodes(file("+td\n++width=number\n+-nowrap\n+-bgcolor=colour"));
    EXPECT_EQ(told(codes.branch),
              (QStringList{htmlRoot, QStringLiteral("td||ImgNode2|0"), QStringLiteral("width=||ImgNode3|1"),
                           QStringLiteral("nowrap||ImgDepr|1"), QStringLiteral("bgcolor=||ImgDepr|1")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantSyntax,
              QStringList{QStringLiteral("<td width=[number] nowrap bgcolor=[colour]>")});
}

TEST(HtmlCodes, GiveTheOnlyElementItsSyntaxAtTheEnd)
{
    const HtmlCodes codes = readHtmlCodes(file("+br"));
    EXPECT_EQ(codes.elements.lstCodeAssistantSyntax, QStringList{QStringLiteral("<br>")});
    EXPECT_EQ(codes.branch.nodes.size(), 2U);
}

TEST(HtmlCodes, OfAnEmptyFileAreTheRootAlone)
{
    const HtmlCodes codes = readHtmlCodes({});
    EXPECT_TRUE(codes.branch.complete);
    EXPECT_EQ(told(codes.branch), QStringList{htmlRoot});
    EXPECT_EQ(codes.elements, CodeElements());
}

TEST(HtmlCodes, EndAtAValueBehindAnElement)
{
    const HtmlCodes codes = readHtmlCodes(file("+a\n++href=\n+b\n+++value\n+c\n"));
    EXPECT_FALSE(codes.branch.complete);
    EXPECT_EQ(told(codes.branch), (QStringList{htmlRoot, QStringLiteral("a||ImgNode2|0"),
                                               QStringLiteral("href=||ImgNode3|1"), QStringLiteral("b||ImgNode2|0")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantElements, (QStringList{QStringLiteral("<a"), QStringLiteral("<b")}));
    EXPECT_EQ(codes.elements.lstCodeAssistantSyntax, QStringList{QStringLiteral("<a href=>")})
        << "a syntax line is written once the next element comes, or the end of the file";
}

TEST(HtmlCodes, EndAtABlankLineBehindAnElementAndTakeOneBehindAnAttribute)
{
    EXPECT_FALSE(readHtmlCodes(file("+a\n\n++href=\n")).branch.complete);
    const HtmlCodes codes = readHtmlCodes(file("+a\n++href=\n\n"));
    EXPECT_TRUE(codes.branch.complete);
    EXPECT_EQ(told(codes.branch).last(), QStringLiteral("||ImgNode4|2"));
}

TEST(HtmlCodes, EndAtAnAttributeInFrontOfAllElements)
{
    const HtmlCodes codes = readHtmlCodes(file("++href=\n+a\n"));
    EXPECT_FALSE(codes.branch.complete);
    EXPECT_EQ(told(codes.branch), QStringList{htmlRoot});
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

TEST(CssCodes, HaveTheirNamesAsKeysAndAColonBehindThem)
{
    const CodeBranch branch = readCssCodes(file("+color\n++red\n++inherit\n+float\n++left"));
    EXPECT_TRUE(branch.complete);
    EXPECT_EQ(
        told(branch),
        (QStringList{cssRoot, QStringLiteral("color:|color|ImgNodeCSSProperty|0"),
                     QStringLiteral("red||ImgNodeCSSValue|1"), QStringLiteral("inherit||ImgNodeCSSValue|1"),
                     QStringLiteral("float:|float|ImgNodeCSSProperty|0"), QStringLiteral("left||ImgNodeCSSValue|4")}));
}

TEST(CssCodes, EndAtAKeyThatIsInTheTreeAlready)
{
    for (const char *name : {"color", "html", "css"}) {
        const CodeBranch branch = readCssCodes(file("+color\n++red\n+") + QString::fromUtf8(name) + file("\n++blue\n"));
        EXPECT_FALSE(branch.complete) << name;
        EXPECT_EQ(branch.nodes.size(), 3U) << name;
    }
    EXPECT_TRUE(readCssCodes(file("+color\n+Color\n")).complete) << "keys differ by their case";
}

TEST(CssCodes, EndAtAValueWithoutAProperty)
{
    EXPECT_EQ(told(readCssCodes(file("++red\n+color\n"))), QStringList{cssRoot});
    EXPECT_FALSE(readCssCodes(file("++red\n+color\n")).complete);
    // A property without a name has no key that a value could be put under.
    const CodeBranch nameless = readCssCodes(file("+color\n\n\n++red\n"));
    EXPECT_FALSE(nameless.complete);
    EXPECT_EQ(nameless.nodes.size(), 4U);
    EXPECT_EQ(told(nameless).last(), QStringLiteral(":||ImgNodeCSSProperty|0"));
}
} // namespace
