#include "files/modFileNames.h"

#include "unit/support/fakes.h"

#include <QFile>

namespace
{
TEST(IsFileNameClean, RefusesWhatNoFileNameMayHold)
{
    for (const QChar c : QStringLiteral("?*:/\\\"<>|"))
        EXPECT_FALSE(IsFileNameClean(QStringLiteral("a") + c + QStringLiteral("b"))) << c.toLatin1();
    EXPECT_TRUE(IsFileNameClean(QStringLiteral("My page, 'one' & two.html")));
    EXPECT_TRUE(IsFileNameClean(QString()));
}

class NameFromTitle : public FilesTest
{
protected:
    QString nameOf(const QString &page) { return DefaultFileNameFromTitle(page, path({}), disk); }
    static QString titled(const QString &title) { return QStringLiteral("<title>%1</title>").arg(title); }
};

TEST_F(NameFromTitle, IsTheTitleAndTheExtension)
{
    EXPECT_EQ(nameOf(titled(QStringLiteral("Welcome"))), QStringLiteral("Welcome.html"));
    EXPECT_EQ(nameOf(QStringLiteral("<HTML>\r\n<TITLE>My Page</TITLE>")), QStringLiteral("My Page.html"));
}

TEST_F(NameFromTitle, KeepsItsPlaceBehindACharacterThatGrowsInLowerCase)
{
    EXPECT_EQ(nameOf(QStringLiteral("\u0130\u0130") + titled(QStringLiteral("Home"))), QStringLiteral("Home.html"));
}

TEST_F(NameFromTitle, IsNothingForFiftyCharacters)
{
    const QString fortyNine(49, u't');
    EXPECT_EQ(nameOf(titled(fortyNine)), fortyNine + QStringLiteral(".html"));
    EXPECT_EQ(nameOf(titled(fortyNine + u't')), QString());
}

TEST_F(NameFromTitle, IsNothingForTheBuiltInTitleInAnyCase)
{
    EXPECT_EQ(nameOf(titled(QStringLiteral("Enter_Title_Here"))), QString());
    EXPECT_EQ(nameOf(titled(QStringLiteral("ENTER_title_here"))), QString());
}

TEST_F(NameFromTitle, IsNothingForATitleOverTwoLines)
{
    EXPECT_EQ(nameOf(titled(QStringLiteral("One\r\ntwo"))), QString());
}

TEST_F(NameFromTitle, IsNothingWithoutATitle)
{
    EXPECT_EQ(nameOf(QString()), QString());
    EXPECT_EQ(nameOf(titled(QString())), QString());
    EXPECT_EQ(nameOf(QStringLiteral("<title>Unfinished")), QString());
}

TEST_F(NameFromTitle, IsNothingForATitleThatIsNoFileName)
{
    EXPECT_EQ(nameOf(titled(QStringLiteral("Either/or"))), QString());
    EXPECT_EQ(nameOf(titled(QStringLiteral("Who?"))), QString());
}

// Without the opening tag the cut starts at the seventh character.
TEST_F(NameFromTitle, IsCutFromTheSeventhCharacterWithoutTheOpeningTag)
{
    EXPECT_EQ(nameOf(QStringLiteral("123456abc</title>")), QStringLiteral("abc.html"));
}

TEST_F(NameFromTitle, IsNothingWhereTheFileIsThere)
{
    writeFile(QStringLiteral("Taken"), "x");
    writeFile(QStringLiteral("Also.html"), "x");
    EXPECT_EQ(nameOf(titled(QStringLiteral("Taken"))), QString());
    EXPECT_EQ(nameOf(titled(QStringLiteral("Also"))), QString());
    EXPECT_EQ(nameOf(titled(QStringLiteral("Free"))), QStringLiteral("Free.html"));
}

class FileOpen : public FilesTest
{
};

TEST_F(FileOpen, FindsAnotherDocumentOfThatNameInAnyCase)
{
    newDocument().DocSavePath = QStringLiteral("/site/Index.html");
    newDocument().DocSavePath = QStringLiteral("/site/mine.html");
    const QString own = QStringLiteral("/site/mine.html");
    EXPECT_TRUE(IsFileOpen(mainWindow, disk, QStringLiteral("/site/index.HTML"), own));
    EXPECT_FALSE(IsFileOpen(mainWindow, disk, QStringLiteral("/site/other.html"), own));
    EXPECT_FALSE(IsFileOpen(mainWindow, disk, own, own));
}

TEST_F(FileOpen, LeavesADocumentItsOwnNameBesideOneThatDiffersInCase)
{
    newDocument().DocSavePath = QStringLiteral("/site/Index.html");
    newDocument().DocSavePath = QStringLiteral("/site/index.html");
    EXPECT_FALSE(IsFileOpen(mainWindow, disk, QStringLiteral("/site/index.html"), QStringLiteral("/site/index.html")));
}

TEST_F(FileOpen, FindsAnotherDocumentsFileByAnotherWay)
{
    writeFile(QStringLiteral("a.html"), "x");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("a.html")), path(QStringLiteral("link.html"))));
    newDocument().DocSavePath = path(QStringLiteral("a.html"));
    newDocument();
    EXPECT_TRUE(IsFileOpen(mainWindow, disk, path(QStringLiteral("link.html")), {}));
    EXPECT_TRUE(IsFileOpen(mainWindow, disk, path(QStringLiteral("/a.html")), {}));
    EXPECT_FALSE(IsFileOpen(mainWindow, disk, path(QStringLiteral("b.html")), {}));
}

TEST_F(FileOpen, SeesFilesAndNoFolders)
{
    writeFile(QStringLiteral("a.html"), "x");
    EXPECT_TRUE(FileExists(disk, path(QStringLiteral("a.html"))));
    EXPECT_FALSE(FileExists(disk, path(QStringLiteral("b.html"))));
    EXPECT_FALSE(FileExists(disk, path({})));
}
} // namespace
