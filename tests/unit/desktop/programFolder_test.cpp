#include "desktop/programFolder.h"

#include "unit/support/sandbox.h"

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

    QString found() const { return programFolder({path("bin"), path("share"), path("home")}); }

    static constexpr const char *own = "home/tagwrighter";
};

TEST_F(ProgramFolder, IsTheExecutablesWhereTheDataStandBesideIt)
{
    put("bin/Html.tcb", "codes");
    EXPECT_EQ(found(), path("bin"));
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
    EXPECT_EQ(get("home/tagwrighter/Html.tcb"), "codes");
}

TEST_F(ProgramFolder, IsSeededOnTheFirstStart)
{
    EXPECT_EQ(found(), path(own));
    EXPECT_EQ(get("home/tagwrighter/Html.tcb"), "codes");
    EXPECT_EQ(get("home/tagwrighter/Template/one.tpl"), "one");
    EXPECT_TRUE(QDir(path("home/tagwrighter/MyPages")).exists());
}

TEST_F(ProgramFolder, GetsWhatIsNewAndKeepsWhatStandsThere)
{
    found();
    put("home/tagwrighter/Html.tcb", "the user's codes");
    put("home/tagwrighter/Template/mine.tpl", "mine");
    put("home/tagwrighter/Template/two.tpl", "the user's two");
    put("share/Html.tcb", "newer codes");
    put("share/Template/two.tpl", "two");
    put("share/Help/a.htm", "page");
    EXPECT_EQ(found(), path(own));
    EXPECT_EQ(get("home/tagwrighter/Html.tcb"), "the user's codes");
    EXPECT_EQ(get("home/tagwrighter/Template/mine.tpl"), "mine");
    EXPECT_EQ(get("home/tagwrighter/Template/two.tpl"), "the user's two");
    EXPECT_EQ(get("home/tagwrighter/Help/a.htm"), "page");
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
    EXPECT_EQ(programFolder({path("bin"), QString(), path("home")}), path(own));
    EXPECT_EQ(programFolder({path("bin"), path("none"), path("home")}), path(own));
    put("file", "in the way");
    EXPECT_EQ(programFolder({path("bin"), path("share"), path("file")}), path("file/tagwrighter"));
}
} // namespace
