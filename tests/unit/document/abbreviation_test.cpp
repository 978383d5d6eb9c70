#include "document/abbreviation.h"

#include <gtest/gtest.h>

namespace
{
constexpr IndentStyle Two{2, false, 4};

std::string written(const char *text)
{
    const auto expansion = abbreviation::expanded(QString::fromUtf8(text), Two);
    if (!expansion)
        return "(none)";
    QString marked = expansion->text;
    return marked.insert(expansion->caret, u'|').replace(QStringLiteral("\r\n"), QStringLiteral("\n")).toStdString();
}

struct Row {
    const char *abbreviation;
    const char *text; ///< "|" is the caret
};

template <std::size_t Size>
void expectWritten(const Row (&rows)[Size])
{
    for (const Row &row : rows)
        EXPECT_EQ(written(row.abbreviation), row.text) << row.abbreviation;
}

TEST(Abbreviation, WritesOneElement)
{
    const Row rows[] = {
        {"p", "<p>|</p>"},
        {"br", "<br>|"},
        {"a", "<a href=\"|\"></a>"},
        {"img", "<img src=\"|\" alt=\"\">"},
        {"#main", "<div id=\"main\">|</div>"},
        {".a.b", "<div class=\"a b\">|</div>"},
        {"p#x.y", "<p id=\"x\" class=\"y\">|</p>"},
        {"a[href=#]", "<a href=\"#\">|</a>"},
        {"a[href=\"a b.html\" title]", "<a href=\"a b.html\" title=\"|\"></a>"},
        {"input[required.]", "<input type=\"text\" required>|"},
        {"p{Hello}", "<p>Hello</p>|"},
        {"p[title='\"']", "<p title=\"&quot;\">|</p>"},
    };
    expectWritten(rows);
}

TEST(Abbreviation, NestsAndLinesUp)
{
    const Row rows[] = {
        {"ul>li*3>a[href=#]", "<ul>\n  <li><a href=\"#\">|</a></li>\n  <li><a href=\"#\"></a></li>\n"
                              "  <li><a href=\"#\"></a></li>\n</ul>"},
        {"div>p", "<div>\n  <p>|</p>\n</div>"},
        {"p>b", "<p><b>|</b></p>"},
        {"h1+p", "<h1>|</h1>\n<p></p>"},
        {"b+i", "<b>|</b><i></i>"},
        {"b*3", "<b>|</b>\n<b></b>\n<b></b>"},
        {"div>p>b^^h1", "<div>\n  <p><b>|</b></p>\n</div>\n<h1></h1>"},
        {"div>p^h1^^h2", "<div>\n  <p>|</p>\n</div>\n<h1></h1>\n<h2></h2>"},
        {"p>{Click }+a{here}+{ now}", "<p>Click <a href=\"|\">here</a> now</p>"},
        {"div{x}>p", "<div>\n  x\n  <p>|</p>\n</div>"},
    };
    expectWritten(rows);
}

TEST(Abbreviation, Groups)
{
    const Row rows[] = {
        {"div>(header>ul>li*2)+footer",
         "<div>\n  <header>\n    <ul>\n      <li>|</li>\n      <li></li>\n    </ul>\n  </header>\n  <footer></footer>\n"
         "</div>"},
        {"(h1+p)*2", "<h1>|</h1>\n<p></p>\n<h1></h1>\n<p></p>"},
        {"dl>(dt+dd)*2", "<dl>\n  <dt>|</dt>\n  <dd></dd>\n  <dt></dt>\n  <dd></dd>\n</dl>"},
    };
    expectWritten(rows);
}

TEST(Abbreviation, Numbers)
{
    const Row rows[] = {
        {"p.a$*2", "<p class=\"a1\">|</p>\n<p class=\"a2\"></p>"},
        {"p#n$$$*2", "<p id=\"n001\">|</p>\n<p id=\"n002\"></p>"},
        {"p{$@-}*3", "<p>3</p>\n<p>2</p>\n<p>1</p>|"},
        {"p{$@3}*2", "<p>3</p>\n<p>4</p>|"},
        {"p{$@-3}*2", "<p>4</p>\n<p>3</p>|"},
        {"h$*2", "<h1>|</h1>\n<h2></h2>"},
        {"(p{$}>b.c$)*2", "<p>1<b class=\"c1\">|</b></p>\n<p>2<b class=\"c2\"></b></p>"},
        {"ul>li{Item $}*2", "<ul>\n  <li>Item 1</li>\n  <li>Item 2</li>\n</ul>|"},
        {"p{$}", "<p>1</p>|"},
    };
    expectWritten(rows);
}

TEST(Abbreviation, NamesByWhatIsAround)
{
    const Row rows[] = {
        {"ul>.a", "<ul>\n  <li class=\"a\">|</li>\n</ul>"},
        {"table>.r>.c", "<table>\n  <tr class=\"r\">\n    <td class=\"c\">|</td>\n  </tr>\n</table>"},
        {"em>.a", "<em><span class=\"a\">|</span></em>"},
    };
    expectWritten(rows);
}

TEST(Abbreviation, RefusesWhatItCannotRead)
{
    for (const char *text : {"", ">p", "p>", "p+", "p*0", "p[", "p[a", "p{", "(p", "p)", "p..a", "#", "1+1", "e.g.",
                             "C++", "p*99999", "((p*99)*99)*99", "{a}>p"})
        EXPECT_EQ(written(text), "(none)") << text;
}

TEST(Abbreviation, StandsRightBeforeTheCaret)
{
    const auto isElement = [](const QString &name) { return name == u"p" || name == u"ul" || name == u"a"; };
    const Row rows[] = {
        {"p", "p"},
        {"some text p", "p"},
        {"word", ""},
        {"some words", ""},
        {"end. ", ""},
        {"<p>ul>li*2", "ul>li*2"},
        {"<p>a", "a"},
        {"<b>x</b>ul>li", "ul>li"},
        {"<p class=\"a", ""},
        {"x\r\nul>li", "ul>li"},
        {"a[title=\"x y\"]{b c}", "a[title=\"x y\"]{b c}"},
        {"(p+p)*2", "(p+p)*2"},
        {"(see p", "p"},
        {"(p", "p"},
        {"word.other", "word.other"},
        {"3*4", ""},
        {"", ""},
        {"p ", ""},
    };
    for (const Row &row : rows) {
        const QString text = QString::fromUtf8(row.abbreviation);
        const qsizetype length = abbreviation::lengthBefore(text, text.size(), isElement);
        EXPECT_EQ(text.last(length).toStdString(), row.text) << row.abbreviation;
    }
}

TEST(Abbreviation, IsWholeInXhtml)
{
    const auto xhtml = [](const char *text) {
        const auto expansion = abbreviation::expanded(QString::fromUtf8(text), Two, MarkupLanguage::Xhtml);
        QString marked = expansion->text;
        return marked.insert(expansion->caret, u'|').toStdString();
    };
    EXPECT_EQ(xhtml("img"), "<img src=\"|\" alt=\"\" />");
    EXPECT_EQ(xhtml("p>br"), "<p><br /></p>|");
    EXPECT_EQ(xhtml("input[disabled.]"), "<input type=\"text\" disabled=\"disabled\" />|");
    EXPECT_EQ(abbreviation::wrapped(QStringLiteral("br+p"), QStringLiteral("a"), Two, MarkupLanguage::Xhtml)->text,
              QStringLiteral("<br />\r\n<p>a</p>"));
}

TEST(Abbreviation, StandsAroundAText)
{
    struct Wrap {
        const char *abbreviation;
        const char *content;
        const char *text;
    };
    const Wrap rows[] = {
        {"p", "a", "<p>a</p>"},
        {"div>p", "a", "<div>\n  <p>a</p>\n</div>"},
        {"ul>li*", "a\r\n\r\n b ", "<ul>\n  <li>a</li>\n  <li>b</li>\n</ul>"},
        {"ul>li*>a[href=$#]", "x\r\ny", "<ul>\n  <li><a href=\"x\"></a></li>\n  <li><a href=\"y\"></a></li>\n</ul>"},
        {"div", "a\r\nb", "<div>\n  a\n  b\n</div>"},
        {"h1+p", "a", "<h1></h1>\n<p>a</p>"},
        {"img", "a", "(none)"},
        {"p>", "a", "(none)"},
    };
    for (const Wrap &row : rows) {
        const auto expansion =
            abbreviation::wrapped(QString::fromUtf8(row.abbreviation), QString::fromUtf8(row.content), Two);
        const QString text = expansion ? expansion->text : QStringLiteral("(none)");
        EXPECT_EQ(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).toStdString(), row.text)
            << row.abbreviation;
    }
}
} // namespace
