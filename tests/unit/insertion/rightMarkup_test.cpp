#include "insertion/rightMarkup.h"

#include <QList>
#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *made;
    const char *html;
    const char *xhtml = nullptr; ///< where it is another
};

void expectRows(const QList<Row> &rows)
{
    for (const Row &row : rows) {
        const QString made = QString::fromUtf8(row.made);
        EXPECT_EQ(rightMarkup(made, MarkupLanguage::Html), QString::fromUtf8(row.html));
        EXPECT_EQ(rightMarkup(made, MarkupLanguage::Xhtml), QString::fromUtf8(row.xhtml ? row.xhtml : row.html));
    }
}
} // namespace

TEST(RightMarkup, namesAreLowerCaseAndValuesQuoted)
{
    expectRows({
        {R"(<LINK REL="stylesheet" HREF="A.css">)", R"(<link rel="stylesheet" href="A.css">)",
         R"(<link rel="stylesheet" href="A.css" />)"},
        {"<font size=3>", R"(<font size="3">)"},
        {R"(<select name = "s">)", R"(<select name="s">)"},
        {"<a href='b'>", R"(<a href="b">)"},
        {R"(<a title='say "b"'>)", R"(<a title="say &quot;b&quot;">)"},
        {"<P>a</P>", "<p>a</p>"},
        {"<td\r\n  WIDTH=1>", "<td\r\n  width=\"1\">"},
        {R"(<table border="">)", R"(<table border="">)"},
        {"", ""},
    });
}

TEST(RightMarkup, aQuoteInAValueIsToldFromTheClosingOneByWhatFollows)
{
    expectRows({
        {R"(<p title="The "big" one">)", R"(<p title="The &quot;big&quot; one">)"},
        {R"(<p title="a" and b" id="i">)", R"(<p title="a&quot; and b" id="i">)"},
        {R"(<p title="5" by 4"">)", R"(<p title="5&quot; by 4&quot;">)"},
        {R"(<p title="a > b">)", R"(<p title="a > b">)"},
    });
}

TEST(RightMarkup, picturesHaveAnAlternativeText)
{
    expectRows({
        {R"(<img src="a.gif">)", R"(<img src="a.gif" alt="">)", R"(<img src="a.gif" alt="" />)"},
        {R"(<img src="a.gif" name="n" width="1">)", R"(<img src="a.gif" name="n" alt="" width="1">)",
         R"(<img src="a.gif" name="n" alt="" width="1" />)"},
        {R"(<img src="a.gif" width="1" alt="B">)", R"(<img src="a.gif" width="1" alt="B">)",
         R"(<img src="a.gif" width="1" alt="B" />)"},
        {R"(<img dynsrc="a.avi" loop="1">)", R"(<img dynsrc="a.avi" alt="" loop="1">)",
         R"(<img dynsrc="a.avi" alt="" loop="1" />)"},
        {R"(<area coords="1" href="#">)", R"(<area coords="1" href="#" alt="">)",
         R"(<area coords="1" href="#" alt="" />)"},
        {R"(<area coords="1">)", R"(<area coords="1">)", R"(<area coords="1" />)"},
    });
}

TEST(RightMarkup, BooleanAttributesAreBareInHtmlOnly)
{
    expectRows({
        {R"(<input type="radio" checked>)", R"(<input type="radio" checked>)",
         R"(<input type="radio" checked="checked" />)"},
        {R"(<option SELECTED="selected">a)", "<option selected>a", R"(<option selected="selected">a)"},
        {R"(<img dynsrc="a" alt="" controls loop="1">)", R"(<img dynsrc="a" alt="" controls loop="1">)",
         R"(<img dynsrc="a" alt="" controls="controls" loop="1" />)"},
        {R"(<select size="0" multiple>)", "<select multiple>", R"(<select multiple="multiple">)"},
        {R"(<select size="">)", "<select>"},
        {R"(<select size="3">)", R"(<select size="3">)"},
    });
}

TEST(RightMarkup, theFirstOfTwoAttributesOfOneNameIsTheOne)
{
    expectRows({
        {R"(<p title="B" class="c" TITLE="">)", R"(<p title="B" class="c">)"},
    });
}

TEST(RightMarkup, onlyXhtmlClosesEmptyElementsAndWritesEachAmpersand)
{
    expectRows({
        {"a<br>b<hr/>c", "a<br>b<hr>c", "a<br />b<hr />c"},
        {"<div></div>", "<div></div>"},
        {R"(<a href="?a=1&b=2&amp;c">&x</a>)", R"(<a href="?a=1&b=2&amp;c">&x</a>)",
         R"(<a href="?a=1&amp;b=2&amp;c">&x</a>)"},
    });
}

TEST(RightMarkup, endTagsSideBySideCloseFromTheInsideOut)
{
    expectRows({
        {"<font><b><i>x</b></i></font>", "<font><b><i>x</i></b></font>"},
        {"<b><i>x</b>y</i>", "<b><i>x</b>y</i>"},
        {"<ul><li>a</ul>", "<ul><li>a</ul>"},
        {"</B></I>", "</b></i>"},
    });
}

TEST(RightMarkup, textCommentsScriptsAndTextAreasStay)
{
    expectRows({
        {"a < b && <B>c</B> <", "a < b && <b>c</b> <"},
        {"<!--<IMG>--><BR>", "<!--<IMG>--><br>", "<!--<IMG>--><br />"},
        {"<!--<IMG>", "<!--<IMG>"},
        {"<SCRIPT>\"<TD A=1>\"</SCRIPT><TD A=1>", "<script>\"<TD A=1>\"</script><td a=\"1\">"},
        {"<textarea><IMG></textarea>", "<textarea><IMG></textarea>"},
        {"<STYLE>A<B</STYLE>", "<style>A<B</style>"},
    });
}

TEST(RightMarkup, aPairIsWrittenWithoutLookingBetween)
{
    const MarkupPair font{QStringLiteral("<font size=4><b><i>"), QStringLiteral("</b></i></font>")};
    const MarkupPair right{QStringLiteral("<font size=\"4\"><b><i>"), QStringLiteral("</i></b></font>")};
    EXPECT_EQ(rightMarkupAround(font, MarkupLanguage::Html), right);
    const MarkupPair lineBreak{QStringLiteral("<br>"), QString()};
    EXPECT_EQ(rightMarkupAround(lineBreak, MarkupLanguage::Html), lineBreak);
    EXPECT_EQ(rightMarkupAround(lineBreak, MarkupLanguage::Xhtml), (MarkupPair{QStringLiteral("<br />"), QString()}));
}
