#include "files/localPaths.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{
const QString mark = QString(FolderMark);

/// Reduces a page on a machine that has these files.
ReducedPage reduced(const QString &page, const QSet<QString> &files)
{
    return reduceLocalPaths(page, [&files](const QString &path) { return files.contains(path); });
}

TEST(LocalPaths, AreReducedToTheMarkAndTheFileName)
{
    const ReducedPage page =
        reduced(QStringLiteral("<p><img src=\"/site/a b/logo.gif\" alt=\"\">"), {QStringLiteral("/site/a b/logo.gif")});
    EXPECT_EQ(page.text, QStringLiteral("<p><img src=\"") + mark + QStringLiteral("logo.gif\" alt=\"\">"));
    EXPECT_EQ(page.files, QStringList{QStringLiteral("/site/a b/logo.gif")});
}

TEST(LocalPaths, OfOtherSystemsAreTakenWhereTheirFilesAreThere)
{
    const ReducedPage page = reduced(QStringLiteral("<img src=\"C:\\a b\\c.gif\"><a href=\"\\\\host\\d\\e.htm\">"),
                                     {QStringLiteral("C:\\a b\\c.gif"), QStringLiteral("\\\\host\\d\\e.htm")});
    EXPECT_EQ(page.text, QStringLiteral("<img src=\"") + mark + QStringLiteral("c.gif\"><a href=\"") + mark +
                             QStringLiteral("e.htm\">"));
    EXPECT_EQ(page.files, (QStringList{QStringLiteral("C:\\a b\\c.gif"), QStringLiteral("\\\\host\\d\\e.htm")}));
}

TEST(LocalPaths, AreListedOnceAndReducedAtEachUse)
{
    const ReducedPage page = reduced(QStringLiteral("<img src=\"/a.gif\"><img src=\"/b.gif\"><img src=\"/a.gif\">"),
                                     {QStringLiteral("/a.gif"), QStringLiteral("/b.gif")});
    EXPECT_EQ(page.text, QStringLiteral("<img src=\"") + mark + QStringLiteral("a.gif\"><img src=\"") + mark +
                             QStringLiteral("b.gif\"><img src=\"") + mark + QStringLiteral("a.gif\">"));
    EXPECT_EQ(page.files, (QStringList{QStringLiteral("/a.gif"), QStringLiteral("/b.gif")}));
}

TEST(LocalPaths, LeaveAloneWhatIsNoLocalFile)
{
    for (const char *page : {
             "<img src=\"images/a.gif\">",  // relative
             "<a href=\"http://x/a.gif\">", // an address
             "<img src=\"/gone.gif\">",     // not there
             "<img src='/a.gif'>",          // no double quotes
             "\"/a.gif\"",                  // no tag at all
             "<p>\"/a.gif\"</p>",           // between two tags
             "<p \"/a.gif\"",               // never closed
             "\"/a.gif\">",                 // never opened
             "<img src=\"//host/a.gif\">",  // an address without its scheme
             "<img src=\"1:\\a.gif\">",     // starts with no letter
             "<img src=/a.gif>",            // no quotes
             "<img src=\"/a.gif>",          // the quote is never closed
             "",
         }) {
        const QString text = QLatin1String(page);
        const ReducedPage same = reduced(text, {QStringLiteral("/a.gif"), QStringLiteral("images/a.gif"),
                                                QStringLiteral("//host/a.gif"), QStringLiteral("1:\\a.gif")});
        EXPECT_EQ(same.text, text) << page;
        EXPECT_TRUE(same.files.isEmpty()) << page;
    }
}

TEST(LocalPaths, AreFoundInSingleQuotesWhereDoubleOnesStandAround)
{
    // The nearest double quotation marks count, wherever they came from; what is between them is then no file's name.
    const QString text = QStringLiteral("<img alt=\"x\" src='/a.gif' title=\"y\">");
    EXPECT_EQ(reduced(text, {QStringLiteral("/a.gif")}).text, text);
}

TEST(LocalPaths, AreNotTakenTwiceForTwoMarksInOne)
{
    const QString path = QStringLiteral("C:\\a\\\\b.gif"); // both marks are in it
    const ReducedPage page = reduced(QStringLiteral("<img src=\"") + path + QStringLiteral("\">"), {path});
    EXPECT_EQ(page.text, QStringLiteral("<img src=\"") + mark + QStringLiteral("b.gif\">"));
    EXPECT_EQ(page.files, QStringList{path});
}

TEST(LocalPaths, EndAtTheMostThatAPageCanHave)
{
    QString page;
    QSet<QString> files;
    for (int i = 0; i < 1005; ++i) {
        const QString path = QStringLiteral("/%1.gif").arg(i);
        page += QStringLiteral("<img src=\"%1\">").arg(path);
        files.insert(path);
    }
    const ReducedPage reducedPage = reduced(page, files);
    EXPECT_EQ(reducedPage.files.size(), 999);
    EXPECT_TRUE(reducedPage.text.contains(mark + QStringLiteral("998.gif")));
    EXPECT_TRUE(reducedPage.text.contains(QStringLiteral("\"/999.gif\"")));
}

TEST(FolderMarks, AreTheirPlacesInTheText)
{
    EXPECT_EQ(folderMarks(QStringLiteral("ab") + mark + QStringLiteral("c") + mark), (QList<qsizetype>{2, 4}));
    EXPECT_TRUE(folderMarks(QStringLiteral("none")).isEmpty());
}
} // namespace
