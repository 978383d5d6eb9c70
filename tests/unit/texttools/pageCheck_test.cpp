#include "texttools/pageCheck.h"

#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

namespace
{
const PageRules &rules()
{
    static const std::shared_ptr<const PageRules> read = [] {
        QFile file(QStringLiteral(TEST_SOURCE_DIR "/data/Page.rules"));
        return file.open(QIODevice::ReadOnly) ? PageRules::read(file.readAll()) : nullptr;
    }();
    return *read;
}

/// What is wrong with a text, as "rule@text it is told of", with "?" behind the rule of a hint, parted by "; ".
std::string found(const QString &text, const PageCheckContext &context = {})
{
    QStringList told;
    for (const PageProblem &problem : checkPage(text, rules(), context))
        told << problem.rule + (problem.kind == PageProblem::Kind::Hint ? QStringLiteral("?") : QString()) + u'@' +
                    text.mid(problem.start, problem.length);
    return told.join(QStringLiteral("; ")).toStdString();
}

QString page(const QString &body, const QString &head = {})
{
    return QStringLiteral("<!DOCTYPE html>\r\n<html "
                          "lang=\"en\">\r\n<head><title>x</title>%1</head>\r\n<body>\r\n%2\r\n</body>\r\n</html>\r\n")
        .arg(head, body);
}

struct Row {
    const char *body;
    const char *found;
};

template <size_t Count>
void expectFound(const Row (&rows)[Count])
{
    for (const Row &row : rows)
        EXPECT_EQ(found(page(QString::fromUtf8(row.body))), row.found) << row.body;
}

TEST(PageCheck, FindsUnknownNames)
{
    expectFound({
        {"<foo>x</foo>", "unknown-element@<foo>"},
        {"<x-foo bar=\"1\">x</x-foo>", ""},
        {"<p foo=\"1\">x</p>", "unknown-attribute@foo=\"1\""},
        {"<p data-foo=\"1\" aria-hidden=\"true\" onclick=\"x()\" xml:lang=\"en\">x</p>", ""},
        {"<p onfoo=\"1\">x</p>", "unknown-attribute@onfoo=\"1\""},
        {"<p aria-foo=\"1\">x</p>", "unknown-attribute@aria-foo=\"1\""},
        {"<svg><foo bar=\"1\"/><circle r=\"5\"/></svg>", ""},
        {"<math><foo bar=\"1\"/></math>", ""},
    });
}

TEST(PageCheck, FindsAttributesThatCannotBe)
{
    expectFound({
        {"<p id=\"a\" id=\"b\">x</p>", "attribute-twice@id=\"b\""},
        {"<p title=a\"b>x</p>", "attribute-value@\""},
        {"<p class=\"a\"id=\"b\">x</p>", "attributes-unparted@i"},
        {"<p class=>x</p>", "attribute-value@class="},
        {"<p class=\"a>x</p>", "unclosed-tag@<p class=\"a>x</p>\r\n</body>\r\n</html>\r\n"},
    });
}

TEST(PageCheck, FindsTagsWithoutTheirPartner)
{
    expectFound({
        {"<p>x</span></p>", "stray-end-tag@</span>"},
        {"<div>x", "unclosed@<div>"},
        {"<p>a <b>b</p>", "unclosed@<b>"},
        {"<p>a <b>b <i>c</b> d</i></p>", "unclosed@<i>"},
        {"<h2>x</h3>", "unclosed@<h2>"},
        {"<br></br>", "stray-end-tag@</br>"},
        {"<input>x</input>", "stray-end-tag@</input>"},
        {"<p>x</p></p>", "stray-end-tag@</p>"},
        {"<p>a<ul><li>b</ul></p>", "stray-end-tag@</p>"},
        {"<ul><li>a<li>b</ul>", ""},
        {"<p>a<p>b", ""},
        {"<dl><dt>a<dd>b<dt>c<dd>d</dl>", ""},
        {"<table><tr><td>a<td>b<tr><td>c<td>d</table>", ""},
        {"<select><option>a<option>b</select>", ""},
        {"<div/>", "slash-in-tag@<div/>; unclosed@<div/>"},
        {"<br/>", ""},
    });
}

TEST(PageCheck, FindsElementsInTheirLike)
{
    expectFound({
        {"<a href=\"#\">a <a href=\"#\">b</a></a>", "in-its-like@<a href=\"#\">"},
        {"<form><form></form></form>", "in-its-like@<form>"},
        {"<button>a <button>b</button></button>", "in-its-like@<button>"},
        {"<label>a <label>b</label></label>", "in-its-like@<label>"},
        {"<a href=\"#\">a <button>b</button></a>", "in-its-like@<button>"},
        {"<a href=\"#\"><span><input></span></a>", "in-its-like@<input>"},
        {"<a href=\"#\">a <input type=\"hidden\"></a>", ""},
        {"<button>a <a>b</a></button>", ""},
        {"<header><header>x</header></header>", "in-its-like@<header>"},
    });
}

TEST(PageCheck, FindsWhatStandsInAWrongParent)
{
    expectFound({
        {"<span><div>x</div></span>", "misplaced@<div>"},
        {"<h1><p>x</p></h1>", "misplaced@<p>"},
        {"<li>x</li>", "misplaced@<li>"},
        {"<dt>x</dt>", "misplaced@<dt>"},
        {"<option>x</option>", "misplaced@<option>"},
        {"<td>x</td>", "stray-start-tag@<td>"},
        {"<tr><td>x</td></tr>", "stray-start-tag@<tr>; stray-start-tag@<td>"},
        {"<ul><p>x</p></ul>", "misplaced@<p>"},
        {"<ul>x</ul>", "misplaced-text@x"},
        {"<ul><script>x</script><template><p>x</p></template></ul>", ""},
        {"<table><tr><td>x</td></tr><caption>y</caption></table>", "misplaced@<caption>"},
        {"<table><div>x</div></table>", "misplaced@<div>"},
        {"<table><td>x</td></table>", "misplaced@<td>"},
        {"<table><tfoot><tr><td>x</tfoot><tbody><tr><td>y</table>", "misplaced@<tbody>"},
        {"<dl><dt>x</dt></dl>", "missing-child@<dl>"},
        {"<dl><div><dt>a</dt><dd>b</dd></div></dl>", ""},
        {"<a href=\"#\"><div>x</div></a>", ""},
        {"<p><a href=\"#\"><ins>x</ins></a></p>", ""},
        {"<span><a href=\"#\"><div>x</div></a></span>", "misplaced@<div>"},
        {"<details>x</details>", "missing-child@<details>; misplaced-text@x"},
        {"<picture><source srcset=\"a\"><img src=\"a\" alt=\"\"></picture>", ""},
        {"<video controls><source src=\"a\"><track src=\"b\"><p>x</p></video>", ""},
        {"<select><button><selectedcontent></selectedcontent></button><option>a</option><hr></select>", ""},
        {"<template><td>x</td><li>y</li></template>", ""},
        {"<center><li>x</li></center>", "deprecated?@<center>"},
    });
}

TEST(PageCheck, FindsWhatLeadsNowhere)
{
    expectFound({
        {"<p id=\"a\">x</p><p id=\"a\">y</p>", "id-twice@a"},
        {"<label for=\"a\">x</label><input id=\"a\">", ""},
        {"<center><p id=\"a\">x</p></center><p><a href=\"#a\">y</a></p>", "deprecated?@<center>"},
        {"<x-y><p id=\"a\">x</p><p id=\"a\">y</p></x-y>", "id-twice@a"},
        {"<template><p id=\"a\">x</p></template><p id=\"a\">y</p>", ""},
        {"<label for=\"a\">x</label><p id=\"a\">y</p>", "leads-nowhere@a"},
        {"<input list=\"a\">", "leads-nowhere@a"},
        {"<input list=\"a\"><datalist id=\"a\"></datalist>", ""},
        {"<input form=\"a\">", "leads-nowhere@a"},
        {"<img src=\"x\" alt=\"\" usemap=\"#m\">", "leads-nowhere@m"},
        {"<p role=\"note\" aria-labelledby=\"a b\" id=\"a\">x</p>", "leads-nowhere@b"},
        {"<a href=\"#a\">x</a>", "leads-nowhere@a"},
        {"<a href=\"#\">x</a> <a href=\"#top\">y</a> <a href=\"#b%20c\">z</a><p id=\"b c\">w</p>", "value@b c"},
    });
}

TEST(PageCheck, FindsValuesOutsideClosedLists)
{
    expectFound({
        {"<input type=\"foo\">", "value@foo"},
        {"<input type=\"TEXT\">", ""},
        {"<p dir=\"left\">x</p>", "value@left"},
        {"<input disabled=\"true\">", "value@true"},
        {"<input disabled=\"disabled\" readonly=\"\">", ""},
        {"<img src=\"x\" alt=\"\" width=\"10px\">", "value@10px"},
        {"<ol start=\"-3\" type=\"a\"><li value=\"5\">x</ol>", ""},
        {"<ol type=\"b\"><li>x</ol>", "value@b"},
        {"<p role=\"foo\">x</p>", "value@foo"},
        {"<p lang=\"en_GB\">x</p>", "value@en_GB"},
        {"<a href=\"a b\">x</a>", "value@a b"},
        {"<time datetime=\"2026-04-05\">x</time>", ""},
        {"<time datetime=\"5 April\">x</time>", "value@5 April"},
        {"<a href=\"x\" rel=\"foo\">x</a>", "link-kind?@foo"},
    });
}

TEST(PageCheck, FindsMissingAttributes)
{
    expectFound({
        {"<img src=\"x\">", "missing-attribute@<img src=\"x\">"},
        {"<img alt=\"x\">", "missing-attribute@<img alt=\"x\">"},
        {"<img srcset=\"x\" alt=\"\">", ""},
        {"<bdo>x</bdo>", "missing-attribute@<bdo>"},
        {"<map><area href=\"#\" alt=\"x\"></map>", "missing-attribute@<map>"},
        {"<input type=\"image\">", "missing-attribute@<input type=\"image\">"},
        {"<a target=\"_blank\">x</a>", "missing-attribute@<a target=\"_blank\">"},
        {"<input type=\"text\" checked>", "attribute-out-of-place@checked"},
        {"<iframe src=\"x\" title=\"y\"></iframe><embed>", ""},
    });
}

TEST(PageCheck, KnowsTheRulesOfSingleElements)
{
    expectFound({
        {"<figure><img src=\"x\"><figcaption>y</figcaption></figure>", ""},
        {"<p><meta name=\"author\" content=\"y\"></p>", "misplaced@<meta name=\"author\" content=\"y\">"},
        {"<p itemscope><meta itemprop=\"x\" content=\"y\"></p>", ""},
        {"<p><link rel=\"icon\" href=\"x\"></p>", "misplaced@<link rel=\"icon\" href=\"x\">"},
        {"<p><link rel=\"stylesheet\" href=\"x\"></p>", ""},
        {"<video src=\"x\"><source src=\"y\"></video>", "misplaced@<source src=\"y\">"},
        {"<table><colgroup span=\"2\"><col></colgroup></table>", "misplaced@<col>"},
        {"<label>x <input> <input></label>", "label-of-many@<input>"},
        {"<input type=\"number\" value=\"x\">", "value@x"},
        {"<input type=\"color\" value=\"#102030\"><input type=\"date\" value=\"2026-04-05\">", ""},
        {"<area href=\"#\" alt=\"x\">", "misplaced@<area href=\"#\" alt=\"x\">"},
        {"<map name=\"m\"><area shape=\"circle\" coords=\"1,2\" href=\"#\" alt=\"x\"></map>", "value@1,2"},
        {"<main>x</main><main>y</main>", "once@<main>"},
        {"<main>x</main><main hidden>y</main>", ""},
    });
}

TEST(PageCheck, ReadsTheTextOfTimes)
{
    expectFound({
        {"<time>2026-04-05</time> <time>14:30</time> <time> 2026 </time> <time>PT4H</time>", ""},
        {"<time>5 April</time>", "value@5 April"},
        {"<time></time>", "value@<time>"},
        {"<time datetime=\"2026-04-05\">5 April</time>", ""},
        {"<time>14&colon;30</time>", ""}, // what it comes to is not looked up
    });
}

TEST(PageCheck, KnowsWhatPropertiesBelongTo)
{
    expectFound({
        {"<p itemscope><b itemprop=\"a\">x</b></p>", ""},
        {"<p itemscope><span><meta itemprop=\"a\" content=\"b\"></span></p>", ""},
        {"<p><b itemprop=\"a\">x</b></p>", "property-of-nothing@a"},
        {"<p itemscope itemprop=\"a\">x</p>", "property-of-nothing@a"},
        {"<p itemscope>x</p><p itemprop=\"a\">y</p>", "property-of-nothing@a"},
        {"<p itemscope itemref=\"r\">x</p><p id=\"r\" itemprop=\"a\">y</p>", ""},
        {"<p itemscope itemref=\"r\">x</p>", "leads-nowhere@r"},
        {"<p itemtype=\"http://a.org/b\">x</p>", "attribute-out-of-place@http://a.org/b"},
        {"<p itemscope itemid=\"urn:c\">x</p>", "attribute-out-of-place@urn:c"},
        {"<p itemscope itemtype=\"http://a.org/b\" itemid=\"urn:c\">x</p>", ""},
    });
}

TEST(PageCheck, LooksAtStatesForAssistiveTechnology)
{
    expectFound({
        {"<p aria-hidden=\"true\" aria-live=\"polite\" aria-relevant=\"additions text\">x</p>", ""},
        {"<p aria-hidden=\"yes\">x</p>", "value@yes"},
        {"<p aria-busy=\"undefined\" aria-current=\"page\" aria-haspopup=\"menu\">x</p>", ""},
        {"<p aria-hidden=\"\" aria-current=\"here\">x</p>", "value@aria-hidden=\"\"; value@here"},
        {"<p aria-live=\"loud\">x</p>", "value@loud"},
        {"<p role=\"checkbox\">x</p>", "missing-attribute@<p role=\"checkbox\">"},
        {"<p role=\"switch\" aria-checked=\"false\">x</p><input type=\"checkbox\" role=\"switch\">", ""},
        {"<p role=\"combobox\">x</p>", "missing-attribute@<p role=\"combobox\">"},
        {"<p role=\"heading\">x</p><h2 role=\"heading\">y</h2>", "missing-attribute@<p role=\"heading\">"},
        {"<div aria-label=\"a\">x</div>", "attribute-out-of-place@aria-label=\"a\""},
        {"<div role=\"group\" aria-label=\"a\">x</div><section aria-label=\"a\">y</section>", ""},
        {"<a aria-label=\"a\">x</a> <a href=\"#\" aria-label=\"a\">y</a>", "attribute-out-of-place@aria-label=\"a\""},
        {"<p role=\"slider\">x</p><p role=\"slider\" aria-valuenow=\"3\">y</p>",
         "missing-attribute@<p role=\"slider\">"},
        {"<p aria-relevant=\"additions noise\">x</p>", "value@additions noise"},
        {"<p aria-owns=\"a\" aria-details=\"b\" id=\"a\">x</p>", "leads-nowhere@b"},
        {"<button popovertarget=\"a\">x</button><p id=\"a\" popover>y</p>", ""},
        {"<button popovertarget=\"a\">x</button>", "leads-nowhere@a"},
    });
}

TEST(PageCheck, FindsReferencesThatAreNone)
{
    expectFound({
        {"<p>a &amp; b & c &eacute; &#233; &#xE9;</p>", ""},
        {"<p>&bogus;</p>", "character-reference@&bogus;"},
        {"<p>&copy 2026</p>", "character-reference@&copy"},
        {"<p>&#0;</p>", "character-reference@&#0"},
        {"<p>&#;</p>", "character-reference@&#"},
        {"<a href=\"?a=1&copy=2&foo=3\">x</a>", ""},
        {"<p>a < b</p>", "less-than@<"},
    });
}

TEST(PageCheck, FindsWhatIsNoMarkup)
{
    expectFound({
        {"<!-- a <!-- b -->", "comment@<!--"},
        {"<? php ?>", "bogus-comment@<? php ?>"},
        {"<!note>", "bogus-comment@<!note>"},
        {"<!-- a", "unclosed-comment@<!--"},
    });
}

TEST(PageCheck, GivesHints)
{
    expectFound({
        {"<font color=\"red\">x</font>", "deprecated?@<font color=\"red\">"},
        {"<p align=\"left\">x</p>", "deprecated?@align=\"left\""},
        {"<h1>a</h1><h3>b</h3>", "heading-level?@<h3>"},
        {"<a href=\"#\"></a>", "empty-link?@<a href=\"#\">"},
        {"<a href=\"#\"><img src=\"x\" alt=\"\"></a>", "empty-link?@<a href=\"#\">"},
        {"<a href=\"#\"><img src=\"x\" alt=\"y\"></a><a href=\"#\" aria-label=\"z\"></a>", ""},
        {"<iframe src=\"x\"></iframe>", "frame-title?@<iframe src=\"x\">"},
        {"<iframe src=\"x\" title=\"y\"></iframe><iframe src=\"x\" hidden></iframe>", ""},
    });
    for (const char *name : {"description", "VIEWPORT", "og:title", "dc.creator", "msapplication-TileColor"})
        EXPECT_EQ(found(page({}, QStringLiteral("<meta name=\"%1\" content=\"x\">").arg(QLatin1String(name)))), "")
            << name;
    EXPECT_EQ(found(page({}, QStringLiteral("<meta name=\"descripton\" content=\"x\">"))), "meta-name?@descripton");
    EXPECT_EQ(found(QStringLiteral("<!DOCTYPE html><html><head><title>x</title></head><body>x</body></html>")),
              "no-language?@<html>");
}

TEST(PageCheck, LooksAtThePageAsAWhole)
{
    EXPECT_EQ(found(QStringLiteral("<html lang=\"en\"><head><title>x</title></head><body>x</body></html>")),
              "doctype@<html lang=\"en\">");
    EXPECT_EQ(found(QStringLiteral("<!DOCTYPE html><html lang=\"en\"><head></head><body>x</body></html>")),
              "missing-child@<head>");
    EXPECT_EQ(found(QStringLiteral("<!DOCTYPE html><title>x</title><p>y")), "");
    EXPECT_EQ(found(page(QStringLiteral("x<title>y</title>"))), "misplaced@<title>");
    EXPECT_EQ(found(page(QStringLiteral("x<body>"))), "stray-start-tag@<body>");
    EXPECT_EQ(found(page(QStringLiteral("x")) + QStringLiteral("<p>y")), "behind-body@<p>");
    // A part of a page, to be put into others, is no page that lacks something.
    EXPECT_EQ(found(QStringLiteral("<p>x</p>")), "");
    EXPECT_EQ(found(QString()), "");
}

TEST(PageCheck, GoesByTheDocumentType)
{
    const QString strict = QStringLiteral(
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\"><html "
        "lang=\"en\"><head><title>x</title></head><body>%1</body></html>");
    EXPECT_EQ(found(strict.arg(QStringLiteral("<p><tt>x</tt></p>"))).substr(0, 14), "old-doctype?@<");
    EXPECT_NE(found(strict.arg(QStringLiteral("<p><font>x</font></p>"))).find("unknown-element@<font>"),
              std::string::npos);
    EXPECT_NE(found(strict.arg(QStringLiteral("<section>x</section>"))).find("unknown-element@<section>"),
              std::string::npos);
    EXPECT_EQ(found(strict.arg(QStringLiteral("<table><tfoot><tr><td>x<tbody><tr><td>y</table>"))).find("misplaced"),
              std::string::npos);
}

TEST(PageCheck, LooksForFiles)
{
    const PageCheckContext context{
        .exists = [](const QString &path) { return path == u"there.htm" || path == u"a b.png"; }, .format = {}};
    const auto of = [&](const char *body) { return found(page(QString::fromUtf8(body)), context); };
    EXPECT_EQ(of("<a href=\"there.htm#x\">x</a>"), "");
    EXPECT_EQ(of("<a href=\"gone.htm\">x</a>"), "missing-file@gone.htm");
    EXPECT_EQ(of("<img src=\"a%20b.png\" alt=\"\">"), "");
    EXPECT_EQ(of("<a href=\"http://a.org/gone\">x</a> <a href=\"/gone\">y</a> <a href=\"?gone\">z</a> <a "
                 "href=\"mailto:a@b.org\">w</a>"),
              "");
    EXPECT_EQ(found(page(QStringLiteral("<a href=\"gone.htm\">x</a>"), QStringLiteral("<base href=\"http://a.org/\">")),
                    context),
              "");
}

TEST(PageCheck, HoldsTheEncodingAgainstTheBytes)
{
    const QString text = page(QStringLiteral("x"), QStringLiteral("<meta charset=\"utf-8\">"));
    EXPECT_EQ(found(text, {.exists = {}, .format = FileFormat{Encoding::Utf8, {}, {}}}), "");
    EXPECT_EQ(found(text, {.exists = {}, .format = FileFormat{Encoding::Windows1252, {}, {}}}), "charset@utf-8");
}

TEST(PageCheck, PutsRightWhatHasOneRightWay)
{
    const struct {
        const char *text;
        const char *right;
    } rows[] = {
        {"<p>a < b</p>", "<p>a &lt; b</p>"},
        {"<p>&copy 2026</p>", "<p>&copy; 2026</p>"},
        {"<p class=\"a\"id=\"b\">x</p>", "<p class=\"a\" id=\"b\">x</p>"},
        {"<img src=\"x\" alt=\"\" width=\"10px\">", "<img src=\"x\" alt=\"\" width=\"10\">"},
        {"<input disabled=\"true\">", "<input disabled>"},
        {"<p>x</br></p>", "<p>x</p>"},
        {"<p>a <b>b</p>", "<p>a <b>b</b></p>"},
        {"<!-- a --!>", "<!-- a -->"},
    };
    for (const auto &row : rows) {
        const QString text = QString::fromUtf8(row.text);
        const QList<PageProblem> problems = checkPage(text, rules());
        ASSERT_EQ(problems.size(), 1) << row.text;
        EXPECT_EQ(withFix(text, problems[0]).toStdString(), row.right);
        EXPECT_EQ(found(withFix(text, problems[0])), "") << row.text;
    }
}

/// The errors in all pages below a folder of the source tree that match a pattern, each with its page.
QStringList errorsBelow(const QString &folder, const QString &pattern, int &pages)
{
    QStringList errors;
    QDirIterator walk(QStringLiteral(TEST_SOURCE_DIR) + folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        ++pages;
        for (const PageProblem &problem : checkPage(QString::fromUtf8(file.readAll()), rules()))
            if (problem.kind == PageProblem::Kind::Error)
                errors << walk.fileName() + QStringLiteral(": ") + problem.message;
    }
    return errors;
}

TEST(PageCheck, AlarmsOfNothingInPagesThatAreRight)
{
    int pages = 0;
    EXPECT_EQ(errorsBelow(QStringLiteral("/tests/unit/texttools/rightPages"), QStringLiteral("*.html"), pages),
              QStringList());
    EXPECT_EQ(errorsBelow(QStringLiteral("/data/help"), QStringLiteral("*.htm"), pages), QStringList());
    EXPECT_EQ(errorsBelow(QStringLiteral("/data/Template"), QStringLiteral("*.tpl"), pages), QStringList());
    EXPECT_GE(pages, 200);
}

TEST(PageCheck, CountsInWords)
{
    const auto counted = [](int errors, int hints) {
        QList<PageProblem> problems(errors + hints);
        for (int i = 0; i < hints; ++i)
            problems[i].kind = PageProblem::Kind::Hint;
        return problemsCounted(problems).toStdString();
    };
    EXPECT_EQ(counted(0, 0), "Nothing found.");
    EXPECT_EQ(counted(1, 1), "1 error, 1 hint");
    EXPECT_EQ(counted(3, 5), "3 errors, 5 hints");
    EXPECT_EQ(counted(2, 0), "2 errors");
    EXPECT_EQ(counted(0, 1), "1 hint");
}

TEST(PageCheck, TellsNoMoreOfARuleThanOneReads)
{
    const QList<PageProblem> problems = checkPage(QStringLiteral("<foo></foo>").repeated(1000), rules());
    EXPECT_EQ(problems.size(), MostOfARule);
}
} // namespace
