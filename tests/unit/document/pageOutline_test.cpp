#include "document/pageOutline.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace
{
/// The nodes as "name(children)", those in error with a "!" and what they are told.
QString shownFrom(const std::vector<OutlineNode> &nodes, qsizetype parent)
{
    QStringList children;
    for (size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].parent != parent)
            continue;
        const QString inside = shownFrom(nodes, static_cast<qsizetype>(i));
        children.append(nodes[i].name + (nodes[i].fault.isEmpty() ? QString() : u'!' + nodes[i].fault) +
                        (inside.isEmpty() ? QString() : u'(' + inside + u')'));
    }
    return children.join(u' ');
}

QString shown(const char *text)
{
    return shownFrom(pageOutline(QString::fromUtf8(text)), -1);
}

struct Row {
    const char *text;
    const char *outline;
};

TEST(PageOutline, NestsElementsAsTheyAreWritten)
{
    const Row rows[] = {
        {"", ""},
        {"text only", ""},
        {"<!DOCTYPE html><html><head><title>a<b></title></head><body><p>x</p></body></html>",
         "html(head(title) body(p))"},
        {"<UL><li>a<li>b<ul><li>c</ul><li>d</UL>", "ul(li li(ul(li)) li)"},
        {"<p>a<p>b<div>c</div>", "p p div"},
        {"<dl><dt>a<dd>b<dt>c</dl>", "dl(dt dd dt)"},
        {"<table><tr><td>a<td>b<tr><th>c<tbody><tr><td>d</table>", "table(tr(td td) tr(th) tbody(tr(td)))"},
        {"<select><optgroup><option>a<option>b<optgroup><option>c</select>",
         "select(optgroup(option option) optgroup(option))"},
        {"<br><img src=a><br/>", "br img br"},
        {"<script>'<b>'</script><style>a{}</style>", "script style"},
        {"<!-- <b> --><i>x</i>", "i"},
        {"<svg><g><path/></g></svg>", "svg(g(path))"},
        {"<p><button><p>a</p></button></p>", "p(button(p))"}, // a button keeps the paragraph around it open
        {"<head><body>", "head body"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(shown(row.text), QString::fromUtf8(row.outline)) << row.text;
}

TEST(PageOutline, TellsWhatIsWrong)
{
    const Row rows[] = {
        {"<div><b>x</div>", "div(b!<b> is not closed in front of </div>.)"},
        {"<b>x", "b!<b> is not closed."},
        {"<p><b>x<p>y", "p(b!<b> is not closed in front of <p>.) p"},
        {"<b>x</b></b>", "b b!<b> is closed twice."},
        {"x</b>", "b!</b> closes nothing: no <b> is open here."},
        {"<p><div>x</div></p>", "p div p!</p> closes nothing: <div> has ended the <p>."},
        {"<b><i>x</b></i>", "b(i!<i> is wrongly nested: it is closed outside of the element that it is in.)"},
        {"<i><b", "i!<i> is not closed.(b!<b> lacks its \">\".)"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(shown(row.text), QString::fromUtf8(row.outline)) << row.text;
}

TEST(PageOutline, KnowsTheTagsPlaces)
{
    const std::vector<OutlineNode> nodes = pageOutline(QStringLiteral("a <b id=x>c</b> </i>"));
    ASSERT_EQ(nodes.size(), 2U);
    EXPECT_EQ(nodes[0].start, 2);
    EXPECT_EQ(nodes[0].length, 8);
    EXPECT_EQ(nodes[1].start, 16);
    EXPECT_EQ(nodes[1].length, 4);
}

/// No text makes it slow: neither depth, nor end tags that find nothing, nor start tags that look for what they end.
TEST(PageOutline, IsQuickWithAnyText)
{
    const char *const pieces[] = {"<b>", "</b>", "<p><button>", "<li>", "<b></i>", "<div><b></div>", "<p>one</p>\r\n"};
    for (const char *piece : pieces) {
        const QString text = QString::fromLatin1(piece).repeated(300'000 / int(qstrlen(piece)));
        QElapsedTimer clock;
        clock.start();
        pageOutline(text);
        EXPECT_LT(clock.elapsed(), 4000) << piece; // without optimisation, on a busy machine
    }
}
} // namespace
