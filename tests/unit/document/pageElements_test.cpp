#include "document/pageElements.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace
{
/// The path at the "|" of a page, as "name number/total", the innermost one first.
std::string pathAt(const char *marked)
{
    const QString page = QString::fromUtf8(marked);
    const qsizetype position = page.indexOf(u'|');
    QStringList told;
    for (const PageElement &each : elementsAt(QString(page).remove(position, 1), position))
        told.append(QStringLiteral("%1 %2/%3").arg(each.name).arg(each.number).arg(each.total));
    return told.join(QStringLiteral(", ")).toStdString();
}

/// The page with a "|" where the caret goes.
std::string placed(const char *text, const ElementPath &path)
{
    QString page = QString::fromUtf8(text);
    const auto place = placeOfElement(page, path);
    return place ? page.insert(*place, u'|').toStdString() : "(nowhere)";
}

PageElement element(const char *name, qsizetype number, qsizetype total)
{
    return {QLatin1String(name), number, total};
}
} // namespace

TEST(ElementsAt, AreThoseThatHoldThePosition)
{
    const std::pair<const char *, const char *> rows[] = {
        {"|<p>a</p>", ""},
        {"<p|>a</p>", "p 0/1"},
        {"<p>a|</p>", "p 0/1"},
        {"<p>a</|p>", "p 0/1"},
        {"<p>a</p>|", ""},
        {"<p>a</p><P>b|</P>", "p 1/2"},
        {"<div><p>a</p>|</div><p>", "div 0/1"},
        {"<div><b>a</b> <i>b<u>c</u>|</i></div>", "i 0/1, div 0/1"},
        {"<p>a<br|>b</p><br>", "br 0/2, p 0/1"},
        {"<p>a<br>b|</p>", "p 0/1"},
        {"<ul><li>a<li>b|<li>c</ul>", "li 1/3, ul 0/1"},
        {"<table><tr><td>a<td>|b<tr><td>c</table>", "td 1/3, tr 0/2, table 0/1"},
        {"<p>a<p>b|", "p 1/2"},
        {"<b><p>a</b>|</p>", ""},
        {"<!-- <p> --><p>|", "p 0/1"},
        {"<script>'<p>|'</script>", "script 0/1"},
        {"", ""},
    };
    for (const auto &[page, path] : rows)
        EXPECT_EQ(QByteArray(page).contains('|') ? pathAt(page) : "", path) << page;
}

TEST(PlaceOfElement, IsBehindItsStartTag)
{
    const char *page = "<ul><li>a</li><li id=\"x>y\">b</li></ul><br>";
    EXPECT_EQ(placed(page, {element("li", 1, 2), element("ul", 0, 1)}),
              "<ul><li>a</li><li id=\"x>y\">|b</li></ul><br>");
    EXPECT_EQ(placed(page, {element("br", 0, 1)}), "<ul><li>a</li><li id=\"x>y\">b</li></ul>|<br>");
}

TEST(PlaceOfElement, IsThatOfTheNextAroundWhereTheBrowserCountsOthers)
{
    const char *page = "<table><tr><td>a</table><p>b";
    EXPECT_EQ(placed(page, {element("tbody", 0, 1), element("table", 0, 1)}), "<table>|<tr><td>a</table><p>b");
    EXPECT_EQ(placed(page, {element("p", 0, 2), element("body", 0, 1)}), "(nowhere)") << "a script has made one";
    EXPECT_EQ(placed(page, {element("p", 1, 1)}), "(nowhere)");
    EXPECT_EQ(placed(page, {element("p", -1, 1)}), "(nowhere)");
    EXPECT_EQ(placed(page, {}), "(nowhere)");
}
