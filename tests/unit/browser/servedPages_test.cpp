#include "browser/servedPages.h"

#include "browser/otherHosts.h"
#include "unit/support/memorySettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
class ServedPagesTest : public testing::Test
{
protected:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    void write(const char *name, const QByteArray &text = "text")
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QUrl served(const char *name) { return pages.servedAddress(QUrl::fromLocalFile(path(name))); }
    /// What a page gets under an address that is relative to its own.
    QString gets(const QUrl &page, const char *relative)
    {
        const auto part = pages.open(page.resolved(QUrl(QLatin1String(relative))));
        return part ? QString::fromUtf8(part->bytes->readAll()) : QStringLiteral("nothing");
    }
    QByteArray type(const QUrl &address)
    {
        const auto part = pages.open(address);
        return part ? part->type : "nothing";
    }

    QTemporaryDir m_folder;
    MemorySettings settings;
    ServedPages pages{settings, {m_folder.filePath(QStringLiteral("program"))}};
};

TEST_F(ServedPagesTest, HaveAddressesThatTellNothingAndLeadBack)
{
    write("site/my page#1?.htm", "page");
    const QUrl address = served("site/my page#1?.htm");
    EXPECT_EQ(address.scheme(), QStringLiteral("tagwrighter-page"));
    EXPECT_FALSE(address.toString().contains(u"site"));
    EXPECT_EQ(pages.ownAddress(address), QUrl::fromLocalFile(path("site/my page#1?.htm")));
    EXPECT_EQ(gets(address, ""), QStringLiteral("page"));
    QUrl query = QUrl::fromLocalFile(path("site/my page#1?.htm"));
    query.setQuery(QStringLiteral("a=b%20c"));
    query.setFragment(QStringLiteral("here"));
    EXPECT_EQ(pages.ownAddress(pages.servedAddress(query)), query);
    const QUrl other(QStringLiteral("http://example.org/x"));
    EXPECT_EQ(pages.servedAddress(other), other);
    EXPECT_EQ(pages.ownAddress(other), other);
}

TEST_F(ServedPagesTest, HaveAHostForEachFolder)
{
    write("site/a.htm");
    write("site/b.htm");
    write("site/below/c.htm");
    EXPECT_EQ(served("site/a.htm").host(), served("site/b.htm").host());
    EXPECT_NE(served("site/a.htm").host(), served("site/below/c.htm").host());
    ServedPages others(settings, {});
    EXPECT_NE(others.servedAddress(QUrl::fromLocalFile(path("site/a.htm"))).host(), served("site/a.htm").host());
}

TEST_F(ServedPagesTest, GiveOutWhatAPageShowsInItsFolderAndBelow)
{
    for (const char *name : {"site/p.htm", "site/a.css", "site/below/b.png", "site/below/deep/c.js", "site/.d.css",
                             "site/.git/e.css", "site/f.json", "site/key", "site/g.php", "up.css"})
        write(name);
    const QUrl page = served("site/p.htm");
    const struct {
        const char *relative;
        bool given;
    } rows[] = {
        {"a.css", true},           {"below/b.png", true},
        {"below/deep/c.js", true}, {"a.css?version=2", true},
        {"below/../a.css", true},  {"A.CSS", false},
        {".d.css", false},         {".git/e.css", false},
        {"f.json", false},         {"key", false},
        {"g.php", false},          {"../up.css", false},
        {"/up.css", false},        {"below", false},
        {"below/", false},         {"", true},
        {"none.css", false},       {"below//b.png", false},
        {"..%2Fup.css", false},    {"below/%2e%2e/%2e%2e/up.css", false},
        {"a.css%00.png", false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(gets(page, row.relative), row.given ? QStringLiteral("text") : QStringLiteral("nothing"))
            << row.relative;
    EXPECT_EQ(gets(QUrl(QStringLiteral("tagwrighter-page://0123/-/-/a.css")), ""), QStringLiteral("nothing"));
}

TEST_F(ServedPagesTest, FollowNoLinkOutAndNoSecondName)
{
    write("secret.css");
    write("site/p.htm");
    write("site/a.css");
    write("site/.hidden/b.css");
    write("out/c.css");
    ASSERT_TRUE(QFile::link(path("secret.css"), path("site/link.css")));
    ASSERT_TRUE(QFile::link(path("out"), path("site/folder")));
    ASSERT_TRUE(QFile::link(path("site/a.css"), path("site/inside.css")));
    ASSERT_TRUE(QFile::link(path("site/.hidden/b.css"), path("site/shown.css")));
    ASSERT_TRUE(QFile::link(QStringLiteral("loop.css"), path("site/loop.css")));
    ASSERT_EQ(::link(path("secret.css").toUtf8().constData(), path("site/hard.css").toUtf8().constData()), 0);
    const QUrl page = served("site/p.htm");
    EXPECT_EQ(gets(page, "inside.css"), QStringLiteral("text"));
    for (const char *name : {"link.css", "folder/c.css", "shown.css", "loop.css", "hard.css"})
        EXPECT_EQ(gets(page, name), QStringLiteral("nothing")) << name;
}

TEST_F(ServedPagesTest, ShowAPageThatIsALinkItself)
{
    write("else/p.htm", "page");
    write("site/a.css");
    ASSERT_TRUE(QFile::link(path("else/p.htm"), path("site/p.htm")));
    const QUrl page = served("site/p.htm");
    EXPECT_EQ(gets(page, ""), QStringLiteral("page"));
    EXPECT_EQ(gets(page, "a.css"), QStringLiteral("text"));
}

TEST_F(ServedPagesTest, WaitForNoPipeAndOpenNoDevice)
{
    write("site/p.htm");
    ASSERT_EQ(::mkfifo(path("site/pipe.css").toUtf8().constData(), 0600), 0);
    ASSERT_EQ(::mkfifo(path("site/pipe.htm").toUtf8().constData(), 0600), 0);
    EXPECT_EQ(gets(served("site/p.htm"), "pipe.css"), QStringLiteral("nothing"));
    EXPECT_EQ(gets(served("site/pipe.htm"), ""), QStringLiteral("nothing"));
    EXPECT_EQ(gets(pages.servedAddress(QUrl(QStringLiteral("file:///dev/zero"))), ""), QStringLiteral("nothing"));
}

TEST_F(ServedPagesTest, GiveOutOfTheProgramsFolderThePageAlone)
{
    write("program/tmp.html", "copy");
    write("program/other.html");
    write("program/templates/a.htm");
    write("program/site/p.htm", "page");
    write("program/site/a.css");
    const QUrl copy = served("program/tmp.html");
    EXPECT_EQ(gets(copy, ""), QStringLiteral("copy"));
    EXPECT_EQ(gets(copy, "other.html"), QStringLiteral("nothing"));
    EXPECT_EQ(gets(copy, "templates/a.htm"), QStringLiteral("nothing"));
    EXPECT_NE(copy.host(), served("program/other.html").host());
    EXPECT_EQ(gets(copy, "other.html"), QStringLiteral("nothing"));
    EXPECT_EQ(gets(served("program/site/p.htm"), "a.css"), QStringLiteral("text")) << "a site kept there is the user's";
    write("above.htm");
    EXPECT_EQ(gets(served("above.htm"), "program/templates/a.htm"), QStringLiteral("nothing"));
}

TEST_F(ServedPagesTest, TellWhatThingsAre)
{
    const struct {
        const char *name;
        QByteArray bytes;
        QByteArray type;
    } rows[] = {
        {"a.HTM", "x", "text/html"},
        {"a.xhtml", "x", "application/xhtml+xml"},
        {"a.svg", "x", "image/svg+xml"},
        {"a.png", "x", "image/png"},
        {"a.mjs", "x", "text/javascript"},
        {"a.txt", "<p>", "text/plain"},
        {"a.asp", " \r\n<html>", "text/html"},
        {"noname", "plain", "text/plain"},
        {"noname2", "", "text/plain"},
        {"a.zip", QByteArray("PK\0\3", 4), "application/octet-stream"},
        {"a.tpl", QByteArray("\xFF\xFE<\0p\0>\0", 8), "text/html"},
    };
    for (const auto &row : rows) {
        write(row.name, row.bytes);
        EXPECT_EQ(type(served(row.name)), row.type) << row.name;
    }
}

TEST_F(ServedPagesTest, TellWhatIsThereButHeldBack)
{
    write("site/p.htm");
    write("up.css");
    const QUrl page = served("site/p.htm");
    EXPECT_TRUE(pages.holdsBack(page.resolved(QUrl(QStringLiteral("../up.css")))));
    EXPECT_EQ(pages.ownAddress(page.resolved(QUrl(QStringLiteral("../up.css")))), QUrl::fromLocalFile(path("up.css")));
    EXPECT_FALSE(pages.holdsBack(page.resolved(QUrl(QStringLiteral("none.css")))));
    EXPECT_FALSE(pages.holdsBack(page));
}

TEST_F(ServedPagesTest, ShowATextInPlaceOfItsFile)
{
    write("site/p.htm", "file");
    const QUrl page = served("site/p.htm");
    pages.setText(path("site/p.htm"), "unsaved");
    EXPECT_EQ(gets(page, ""), QStringLiteral("unsaved"));
    pages.setText(path("site/new.htm"), "not there");
    EXPECT_EQ(gets(served("site/new.htm"), ""), QStringLiteral("not there"));
    pages.dropText(path("site/p.htm"));
    EXPECT_EQ(gets(page, ""), QStringLiteral("file"));
}

TEST_F(ServedPagesTest, ShowOtherHostsWhereTheFolderIsAllowedThem)
{
    write("site/p.htm");
    const QUrl page = served("site/p.htm");
    EXPECT_FALSE(pages.showsOtherHosts(page));
    otherHosts::setShown(settings, path("site"), true);
    EXPECT_TRUE(pages.showsOtherHosts(page));
    EXPECT_FALSE(pages.showsOtherHosts(served("else/p.htm")));
    otherHosts::setShown(settings, path("site"), false);
    EXPECT_FALSE(pages.showsOtherHosts(page));
    EXPECT_FALSE(pages.showsOtherHosts(QUrl(QStringLiteral("http://example.org/"))));
}
TEST_F(ServedPagesTest, LetACopyWhatItsFolderIsAllowed)
{
    write("program/copy.html");
    otherHosts::setShown(settings, path("site"), true);
    EXPECT_FALSE(pages.showsOtherHosts(served("program/copy.html")));
    pages.setFolderOf(path("program/copy.html"), path("site"));
    const QUrl ofSite = served("program/copy.html");
    EXPECT_TRUE(pages.showsOtherHosts(ofSite));
    pages.setFolderOf(path("program/copy.html"), path("other"));
    EXPECT_FALSE(pages.showsOtherHosts(served("program/copy.html")));
    EXPECT_NE(served("program/copy.html").host(), ofSite.host());
    pages.setFolderOf(path("program/copy.html"), {});
    EXPECT_FALSE(pages.showsOtherHosts(served("program/copy.html")));
}
} // namespace
