#include "help/helpContents.h"
#include "help/helpSearch.h"
#include "help/helpText.h"
#include "help/helpTopics.h"

#include <QUrl>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

struct TopicRow {
    const char *topic;
    const char *page; ///< empty: there is none
};

TEST(HelpTopics, AreMappedToPagesInsideTheirFolder)
{
    const TopicRow rows[] = {
        {"::/topics/Index.htm", "topics/Index.htm"},
        {"::/topics/using/About_Wizards.htm", "topics/using/About_Wizards.htm"},
        {"::/topics/reference/Tag_H1.htm", "topics/reference/Tag_H1.htm"},
        {"::/topics/reference/Tag_A%2e b#c?d.htm", "topics/reference/Tag_A%2e b#c?d.htm"},
        {"::/topics/a..b.htm", "topics/a..b.htm"},
        {"::/topics/../../etc/passwd", ""},
        {"::/topics/using/../../../etc/passwd", ""},
        {"::/topics/./Index.htm", ""},
        {"::/topics//etc/passwd", ""},
        {"::/topics/using\\..\\..\\x", ""},
        {"::/topics/", ""},
        {"::/topics", ""},
        {"::/../topics/Index.htm", ""},
        {"::/etc/passwd", ""},
        {"::/contents.txt", ""},
        {"/topics/Index.htm", ""},
        {"topics/Index.htm", ""},
        {"", ""},
    };
    for (const TopicRow &row : rows)
        EXPECT_EQ(helpPageOfTopic(q(row.topic)).value_or(QString()), q(row.page)) << row.topic;
    EXPECT_FALSE(helpPageOfTopic(q("::/topics/a") + QChar(0) + q("b.htm")));
}

TEST(HelpTopics, KeepTheirPagesThroughAddresses)
{
    for (const char *page : {"topics/Index.htm", "topics/a b.htm", "topics/Tag_100%.htm", "topics/Tag_#x?.htm"})
        EXPECT_EQ(helpPageOfUrl(helpUrl(q(page))), q(page)) << page;
}

TEST(HelpTopics, AreReachedByRelativeLinks)
{
    const QUrl page = helpUrl(q("topics/using/About_Wizards.htm"));
    EXPECT_EQ(helpPageOfUrl(page.resolved(QUrl(q("../Index.htm")))), q("topics/Index.htm"));
    EXPECT_EQ(helpPageOfUrl(page.resolved(QUrl(q("#top")))), q("topics/using/About_Wizards.htm"));
    for (const char *hostile : {"../../../etc/passwd", "..%2f..%2f..%2fetc%2fpasswd", "%2e%2e/%2e%2e/contents.txt",
                                "/etc/passwd", "file:///etc/passwd", "http://example.org/topics/Index.htm"})
        EXPECT_FALSE(helpPageOfUrl(page.resolved(QUrl(q(hostile))))) << hostile;
}

TEST(HelpContents, NestByTabs)
{
    const QList<HelpEntry> contents = parseHelpContents(q("# what stands where\r\n"
                                                          "Welcome\ttopics/Index.htm\thome; start page ;\r\n"
                                                          "\n"
                                                          "Using\n"
                                                          "\tFiles\ttopics/files.htm\n"
                                                          "\t\tSaving\ttopics/save.htm\n"
                                                          "\tPages\ttopics/pages.htm\n"
                                                          "\t\t\t\tDeep\ttopics/deep.htm\n"));
    ASSERT_EQ(contents.size(), 2);
    EXPECT_EQ(contents[0].title, q("Welcome"));
    EXPECT_EQ(contents[0].page, q("topics/Index.htm"));
    EXPECT_EQ(contents[0].keywords, QStringList({q("home"), q("start page")}));
    EXPECT_EQ(contents[1].page, QString());
    ASSERT_EQ(contents[1].children.size(), 2);
    EXPECT_EQ(contents[1].children[0].children.value(0).page, q("topics/save.htm"));
    EXPECT_EQ(contents[1].children[1].children.value(0).title, q("Deep"));
}

TEST(HelpContents, OfNothingAreEmpty)
{
    EXPECT_TRUE(parseHelpContents(QString()).isEmpty());
    EXPECT_TRUE(parseHelpReference(QString()).isEmpty());
    EXPECT_EQ(parseHelpContents(q("\tIndented\ttopics/a.htm")).value(0).title, q("Indented"));
}

TEST(HelpContents, TakeTheReferenceBelowItsIndex)
{
    QList<HelpEntry> contents = parseHelpContents(q("Using\n\tReference\ttopics/reference/ReferenceIndex.htm\n"));
    const QList<HelpEntry> reference =
        parseHelpReference(q("a\ttopics/reference/Tag_A.htm\nno page\n\nb\ttopics/b.htm\r\n"));
    ASSERT_EQ(reference.size(), 2);
    EXPECT_EQ(reference[1].page, q("topics/b.htm"));
    addHelpReference(contents, q("topics/reference/ReferenceIndex.htm"), reference);
    EXPECT_EQ(contents[0].children[0].children.value(1).title, q("b"));
    addHelpReference(contents, q("topics/elsewhere.htm"), reference);
    EXPECT_EQ(contents.size(), 3);
}

TEST(HelpContents, MakeAnIndexOfTitlesAndKeywords)
{
    const QList<HelpIndexRow> rows = helpIndex(parseHelpContents(q("Save\ttopics/save.htm\tkeep; Disk\n"
                                                                   "Heading alone\n"
                                                                   "\tbold\ttopics/bold.htm\tKeep\n"
                                                                   "Save\ttopics/save.htm\n"
                                                                   "Save\ttopics/all.htm\n")));
    EXPECT_EQ(rows, (QList<HelpIndexRow>{{q("bold"), q("topics/bold.htm")},
                                         {q("Disk"), q("topics/save.htm")},
                                         {q("Keep"), q("topics/bold.htm")},
                                         {q("keep"), q("topics/save.htm")},
                                         {q("Save"), q("topics/all.htm")},
                                         {q("Save"), q("topics/save.htm")}}));
}

TEST(HelpText, IsThePageWithoutItsMarkup)
{
    const HelpText text =
        helpTextOf(q("topics/a.htm"), q("<html><head><title>Tables &amp;\n lists</title></head>\n"
                                        "<body class=\"x\"><h1>Tables</h1><p>Write <b>&lt;td&gt;</b>s."
                                        "</p><ul><li>one<li>two</ul>caf&#233; &#x2014; a&nbsp;b &odd; "
                                        "&</body></html>"));
    EXPECT_EQ(text.page, q("topics/a.htm"));
    EXPECT_EQ(text.title, q("Tables & lists"));
    EXPECT_EQ(text.text, q("Write <td>s. one two café — a b &odd; &"));
}

TEST(HelpText, BearsBrokenMarkup)
{
    EXPECT_EQ(helpTextOf({}, q("a < b")).text, q("a"));
    EXPECT_EQ(helpTextOf({}, q("<title>open")).title, QString());
    EXPECT_EQ(helpTextOf({}, q("&#0; &#xD800; &#99999999; &#;")).text, q("&#0; &#xD800; &#99999999; &#;"));
    EXPECT_EQ(helpTextOf({}, QString()).text, QString());
}

QStringList pagesFound(const QList<HelpText> &pages, const char *query)
{
    QStringList found;
    for (const HelpHit &hit : searchHelp(pages, q(query)))
        found += hit.page;
    return found;
}

TEST(HelpSearch, PutsTitlesFirst)
{
    const QList<HelpText> pages = {
        {q("text"), q("Lists"), q("A table, a table and a table stand in a table.")},
        {q("once"), q("Frames"), q("No table is a frame.")},
        {q("inside"), q("Insert a table"), q("Rows.")},
        {q("begins"), q("Table rows"), q("Rows.")},
        {q("is"), q("TABLE"), q("Rows.")},
        {q("none"), q("Links"), q("Nothing of the kind.")},
    };
    EXPECT_EQ(pagesFound(pages, "table"), QStringList({q("is"), q("begins"), q("inside"), q("text"), q("once")}));
}

TEST(HelpSearch, WantsEveryWord)
{
    const QList<HelpText> pages = {
        {q("both"), q("Colour"), q("of the background")},
        {q("apart"), q("Background colours"), q("none")},
        {q("one"), q("Colour"), q("of the text")},
    };
    EXPECT_EQ(pagesFound(pages, "  colour   BACK "), QStringList({q("apart"), q("both")}));
    EXPECT_TRUE(pagesFound(pages, "").isEmpty());
    EXPECT_TRUE(pagesFound(pages, "   ").isEmpty());
    EXPECT_TRUE(pagesFound(pages, "colour violet").isEmpty());
}

TEST(HelpSearch, OfEqualsTakesTheTitlesInOrder)
{
    const QList<HelpText> pages = {
        {q("2"), q("beta"), q("x")}, {q("3"), q("Alpha"), q("x")}, {q("1"), q("beta"), q("x")}};
    EXPECT_EQ(pagesFound(pages, "x"), QStringList({q("3"), q("1"), q("2")}));
}

TEST(HelpSearch, ShowsWhereTheWordsStand)
{
    const QString before = q("word ").repeated(30);
    const QString after = q(" more").repeated(60);
    const QString context =
        searchHelp({{q("p"), q("t"), before + q("the sought place") + after}}, q("sought")).value(0).context;
    EXPECT_TRUE(context.startsWith(q("…word "))) << context.toStdString();
    EXPECT_TRUE(context.contains(q("the sought place more")));
    EXPECT_TRUE(context.endsWith(q(" more…"))) << context.toStdString();
    EXPECT_LE(context.size(), 145);
    EXPECT_EQ(searchHelp({{q("p"), q("sought"), q("short text")}}, q("sought")).value(0).context, q("short text"));
    // Without blanks there are no words to begin with: 40 characters stand before the place.
    const QString solid =
        searchHelp({{q("p"), q("t"), q("x").repeated(400) + q("sought")}}, q("sought")).value(0).context;
    EXPECT_EQ(solid, q("…") + q("x").repeated(40) + q("sought"));
}
} // namespace
