#include "document/structureTree.h"

#include "unit/document/scanHelpers.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

std::vector<std::string> nodesAfterPass(const char *text)
{
    SyntaxScanner scanner(QString::fromUtf8(text), {});
    scanAll(scanner, true);
    return nodesOf(scanner.structure());
}

TEST(StructureTree, NamesEachElementByTheFirstRowThatFits)
{
    const std::pair<const char *, const char *> rows[] = {
        {"<!-- x -->", "0,10*|Comment|Comment|-1"},
        {"<!-- a > b -->", "0,8*|Comment|Comment|-1"}, // the tag, not the comment
        {"<b>", "0,3*|FontBold|Bold|-1"},
        {"<B >", "0,4*|FontBold|Bold|-1"},
        {"<i>", "0,3*|FontItalic|Italic|-1"},
        {"<i x>", "0,5*|FontItalic|Italic|-1"},
        {"<u>", "0,3*|FontUnderline|Underline|-1"},
        {"<u x>", "0,5*|FontUnderline|Underline|-1"},
        {"<h1>", "0,4*|Heading|Heading 1|-1"},
        {"<H3>", "0,4*|Heading|Heading 3|-1"},
        {"<h6 a>", "0,6*|Heading|Heading 6|-1"},
        {"<h7>", "0,4*|Element|<h7>|-1"},
        {"<a>", "0,3*|Hyperlink|Hyperlink|-1"},
        {"<a b>", "0,5*|Hyperlink|Hyperlink|-1"},
        {"<img x>", "0,7*|Image|Image|-1"},
        {"<img>", "0,5*|Element|<img>|-1"},
        {"<br>", "0,4*|LineBreak|Line Break|-1"},
        {"<br />", "0,6*|LineBreak|Line Break|-1"},
        {"<br/>", "0,5*|Element|<br/>|-1"},
        {"<hr>", "0,4*|HorizontalRule|Horizontal Rule|-1"},
        {"<hr x>", "0,6*|HorizontalRule|Horizontal Rule|-1"},
        {"<form>", "0,6*|FormObject|Form Field|-1"},
        {"<form x>", "0,8*|FormObject|Form Field|-1"},
        {"<table>", "0,7*|Table|Table|-1"},
        {"<table align=left>", "0,18*|Table|Table|-1"},
        {"<TD Align=Left>", "0,15*|Element|<td align=left>|-1"},
        {"</P>", "0,4*|Element|</p>|-1"},
        {"<pre>", "0,5*|Element|<pre>|-1"},
        {"<param a>", "0,9*|Element|<param a>|-1"},
        {"<b <i>", "0,6*|FontBold|Bold|-1"},
        {"<i <b>", "0,6*|FontBold|Bold|-1"},      // the row decides, not the place
        {"<xY<h2>", "0,7*|Heading|Heading Y|-1"}, // the tag's third character, as written
    };
    for (const auto &[text, node] : rows)
        EXPECT_THAT(nodesAfterPass(text), ElementsAre(node)) << text;
}

TEST(StructureTree, SelectsAParagraphThroughItsEnd)
{
    EXPECT_THAT(nodesAfterPass("<p>a</p>"), ElementsAre("0,8*|Paragraph|Paragraph|-1", "4,4*|Element|</p>|-1"));
    EXPECT_THAT(nodesAfterPass("<p a>b</P>"), ElementsAre("0,10*|Paragraph|Paragraph|-1", "6,4*|Element|</p>|-1"));
    EXPECT_THAT(nodesAfterPass("<p>a<p>b</p>"),
                ElementsAre("0,12*|Paragraph|Paragraph|-1", "4,8*|Paragraph|Paragraph|-1", "8,4*|Element|</p>|-1"));
}

TEST(StructureTree, SelectsTheTagAloneWhereNoEndIsTaken)
{
    EXPECT_THAT(nodesAfterPass("<p>a"), ElementsAre("0,3*|Paragraph|Paragraph|-1"));
    // In capitals the end is not taken, unless a paragraph in lower case stands ahead of it.
    EXPECT_THAT(nodesAfterPass("<P>a</P>"), ElementsAre("0,3*|Paragraph|Paragraph|-1", "4,4*|Element|</p>|-1"));
    EXPECT_THAT(nodesAfterPass("<P>a<p></P>"),
                ElementsAre("0,11*|Paragraph|Paragraph|-1", "4,7*|Paragraph|Paragraph|-1", "7,4*|Element|</p>|-1"));
}

TEST(StructureTree, KeepsTheEndOfAnEarlierParagraph)
{
    EXPECT_THAT(nodesAfterPass("<p>a</p><p>b"),
                ElementsAre("0,8*|Paragraph|Paragraph|-1", "4,4*|Element|</p>|-1", "8,0*|Paragraph|Paragraph|-1"));
    EXPECT_THAT(nodesAfterPass("<p>a</p>xxxx<p>b"),
                ElementsAre("0,8*|Paragraph|Paragraph|-1", "4,4*|Element|</p>|-1", "12,-4*|Paragraph|Paragraph|-1"));
}

TEST(StructureTree, HangsAlignmentUnderItsParagraph)
{
    EXPECT_THAT(
        nodesAfterPass("<P ALIGN=CENTER>x</P>"),
        ElementsAre("0,16*|Paragraph|Paragraph|-1", "3,6*|AlignCentre|Align Center|0", "17,4*|Element|</p>|-1"));
    EXPECT_THAT(
        nodesAfterPass("<b><p align=justify>"),
        ElementsAre("0,3*|FontBold|Bold|-1", "3,17*|Paragraph|Paragraph|-1", "6,6*|AlignJustify|Align Justify|1"));
    EXPECT_THAT(nodesAfterPass("<p align=rightleft>"),
                ElementsAre("0,19*|Paragraph|Paragraph|-1", "3,6*|AlignRight|Align Right|0"));
    EXPECT_THAT(nodesAfterPass("<p align=none>"), ElementsAre("0,14*|Paragraph|Paragraph|-1"));
    // The word has to stand within fifteen characters.
    EXPECT_THAT(nodesAfterPass("<p align=\"       left\">"), ElementsAre("0,23*|Paragraph|Paragraph|-1"));
    EXPECT_THAT(nodesAfterPass("<p align=\"   left\">"),
                ElementsAre("0,19*|Paragraph|Paragraph|-1", "3,6*|AlignLeft|Align Left|0"));
}

TEST(StructureTree, PutsTheAlignmentOfADivisionAtTheRoot)
{
    EXPECT_THAT(nodesAfterPass("<div>"), ElementsAre());
    EXPECT_THAT(nodesAfterPass("<div align=right>"), ElementsAre("5,6*|AlignRight|Align Right|-1"));
    EXPECT_THAT(nodesAfterPass("<div <p>"), ElementsAre("0,8*|Paragraph|Paragraph|-1"));
}

TEST(StructureTree, KeepsTheAlignmentOfAnEarlierTagBehindALineBreak)
{
    EXPECT_THAT(nodesAfterPass("<p class=x\r\nalign=left>"), ElementsAre("0,23*|Paragraph|Paragraph|-1"));
    EXPECT_THAT(nodesAfterPass("<p align=right><p class=x\r\nalign=left>"),
                ElementsAre("0,15*|Paragraph|Paragraph|-1", "3,6*|AlignRight|Align Right|0",
                            "15,23*|Paragraph|Paragraph|-1", "15,6*|AlignRight|Align Right|2"));
}

TEST(StructureTree, ShowsWhatTheRepairOfATagSelected)
{
    EXPECT_THAT(nodesAfterPass("x<b <i>"), ElementsAre("1,3*|FontBold|Bold|-1", "4,3*|FontItalic|Italic|-1"));
    EXPECT_THAT(nodesAfterPass("<b"), ElementsAre("0,0*|Element||-1"));
    EXPECT_THAT(nodesAfterPass("x<b"), ElementsAre("1,0*|Element||-1"));
    // The second node with the key "5,0*" is left out.
    EXPECT_THAT(nodesAfterPass("a b c<d<e> f"), ElementsAre("5,0*|Element||-1", "5,6*|Element|<d<e> |-1"));
}

TEST(StructureTree, TakesNodesOnlyWhileShown)
{
    SyntaxScanner scanner(QStringLiteral("<b><i><u>"), {});
    scanner.advance(); // at the first tag
    scanner.advance(); // in it
    scanner.advance(); // at the second
    scanner.setStructureShown(true);
    scanner.advance();
    scanner.setStructureShown(false);
    while (scanner.advance()) {
    }
    EXPECT_THAT(nodesOf(scanner.structure()), ElementsAre("3,3*|FontItalic|Italic|-1"));
}

TEST(StructureTree, ClickSelectsWhatTheKeySays)
{
    EXPECT_EQ(selectionOfNode(u"12,34*"), (TextSelection{12, 34}));
    EXPECT_EQ(selectionOfNode(u"12,-4*"), (TextSelection{12, -4}));
    EXPECT_EQ(selectionOfNode(u"0,0*"), (TextSelection{0, 0}));
}
} // namespace
