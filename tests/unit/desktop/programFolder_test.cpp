#include "desktop/programFolder.h"

#include "unit/support/sandbox.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <unistd.h>

namespace
{
class ProgramFolder : public Sandbox
{
protected:
    ProgramFolder()
    {
        QDir().mkpath(path("bin"));
        put("share/Html.tcb", "codes");
        put("share/Template/one.tpl", "one");
        QDir().mkpath(path("share/MyPages"));
    }

    ProgramFolders folders() const { return programFolders({path("bin"), path("share"), path("home")}); }
    QString found() const { return folders().own; }

    static constexpr const char *own = "home/tagwrighter";
};

TEST_F(ProgramFolder, IsTheExecutablesWhereTheDataStandBesideIt)
{
    put("bin/Html.tcb", "codes");
    EXPECT_EQ(found(), path("bin"));
    EXPECT_EQ(folders().installed, QString());
    EXPECT_FALSE(QFile::exists(path("home")));
}

TEST_F(ProgramFolder, IsTheUsersWhereTheExecutablesCannotBeWritten)
{
    put("bin/Html.tcb", "codes");
    QDir().mkpath(path("home"));
    ASSERT_TRUE(QFile::setPermissions(path("home"), QFile::Permissions(0x7777)));
    if (::getuid() != 0)
        GTEST_SKIP() << "only root can become a user without rights";
    EXPECT_EQ(inChild([&] { return becomeNobody() && found() == path(own) ? 0 : 1; }), 0);
    EXPECT_EQ(get("home/tagwrighter/Template/one.tpl"), "one");
}

TEST_F(ProgramFolder, ReadsWhatStandsBesideAnExecutableThatCannotBeWritten)
{
    put("bin/Html.tcb", "codes");
    put("bin/Template/beside.tpl", "beside");
    QDir().mkpath(path("home"));
    ASSERT_TRUE(QFile::setPermissions(path("home"), QFile::Permissions(0x7777)));
    if (::getuid() != 0)
        GTEST_SKIP() << "only root can become a user without rights";
    EXPECT_EQ(inChild([&] {
                  const ProgramPlaces places{path("bin"), {}, path("home")};
                  return becomeNobody() && programFolders(places).installed == path("bin") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(get("home/tagwrighter/Template/beside.tpl"), "beside");
}

TEST_F(ProgramFolder, IsGivenWhatTheUserMayChangeOnTheFirstStart)
{
    put("share/CodeLibrary/Lists/a.cde", "code");
    put("share/Syntax.dic", "words");
    put("share/help/topics/Index.htm", "page");
    EXPECT_EQ(found(), path(own));
    EXPECT_EQ(folders().installed, path("share"));
    EXPECT_EQ(get("home/tagwrighter/Template/one.tpl"), "one");
    EXPECT_EQ(get("home/tagwrighter/CodeLibrary/Lists/a.cde"), "code");
    EXPECT_EQ(get("home/tagwrighter/Syntax.dic"), "words");
    EXPECT_TRUE(QDir(path("home/tagwrighter/MyPages")).exists());
    EXPECT_FALSE(QFile::exists(path("home/tagwrighter/Html.tcb")));
    EXPECT_FALSE(QFile::exists(path("home/tagwrighter/help")));
}

TEST_F(ProgramFolder, GetsWhatIsNewAndKeepsWhatStandsThere)
{
    found();
    put("home/tagwrighter/Html.tcb", "the user's codes");
    put("home/tagwrighter/Template/mine.tpl", "mine");
    put("home/tagwrighter/Template/two.tpl", "the user's two");
    put("share/Html.tcb", "newer codes");
    put("share/Template/two.tpl", "two");
    put("share/Template/three.tpl", "three");
    EXPECT_EQ(found(), path(own));
    EXPECT_EQ(get("home/tagwrighter/Html.tcb"), "the user's codes");
    EXPECT_EQ(get("home/tagwrighter/Template/mine.tpl"), "mine");
    EXPECT_EQ(get("home/tagwrighter/Template/two.tpl"), "the user's two");
    EXPECT_EQ(get("home/tagwrighter/Template/three.tpl"), "three");
}

TEST_F(ProgramFolder, LosesTheCopiesOfAnEarlierVersionThatNobodyHasChanged)
{
    put("home/tagwrighter/Html.tcb", "older codes");
    put("home/tagwrighter/help/a.htm", "older page");
    put("home/tagwrighter/help/sub/b.htm", "older page");
    put("home/tagwrighter/Template/one.tpl", "older one");
    put("home/tagwrighter/.installed", "Css.tcb\nHtml.tcb\nTemplate\nTemplate/one.tpl\nhelp\nhelp/a.htm\nhelp/sub\n"
                                       "help/sub/b.htm\n");
    put("home/tagwrighter/Css.tcb", "changed by the user");
    QFile changed(path("home/tagwrighter/Css.tcb"));
    ASSERT_TRUE(changed.open(QIODevice::ReadWrite));
    ASSERT_TRUE(changed.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    changed.close();
    put("home/tagwrighter/help/mine.htm", "the user's page");
    found();
    EXPECT_EQ(names("home/tagwrighter/help"), QStringList(QStringLiteral("mine.htm")));
    EXPECT_FALSE(QFile::exists(path("home/tagwrighter/Html.tcb")));
    EXPECT_EQ(get("home/tagwrighter/Css.tcb"), "changed by the user");
    EXPECT_EQ(get("home/tagwrighter/Template/one.tpl"), "older one");
    found();
    EXPECT_EQ(get("home/tagwrighter/Css.tcb"), "changed by the user");
}

TEST_F(ProgramFolder, DoesNotBringBackWhatTheUserTookAway)
{
    found();
    ASSERT_TRUE(QFile::remove(path("home/tagwrighter/Template/one.tpl")));
    ASSERT_TRUE(QDir().rmdir(path("home/tagwrighter/MyPages")));
    found();
    EXPECT_EQ(names("home/tagwrighter/Template"), QStringList());
    EXPECT_FALSE(QDir(path("home/tagwrighter/MyPages")).exists());
}

TEST_F(ProgramFolder, IsNamedWhereNothingCanBeSeeded)
{
    EXPECT_EQ(programFolders({path("bin"), QString(), path("home")}).own, path(own));
    EXPECT_EQ(programFolders({path("bin"), path("none"), path("home")}).own, path(own));
    put("file", "in the way");
    EXPECT_EQ(programFolders({path("bin"), path("share"), path("file")}).own, path("file/tagwrighter"));
}
} // namespace
