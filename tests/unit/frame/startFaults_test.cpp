#include "frame/startFaults.h"

#include "desktop/desktopServices.h"
#include "services/services.h"
#include "unit/support/sandbox.h"

#include <QDir>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace
{
/// The real services, with folders of the test's in the place of the user's.
class StartFaults : public Sandbox
{
protected:
    StartFaults()
    {
        qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
        qputenv("XDG_DATA_HOME", path("data").toUtf8());
        put("app/Html.tcb", "x");
        put("app/Css.tcb", "x");
        put("app/Page.rules", "x");
        put("state/x", "x");
    }

    QStringList faults(const char *app = "app", const char *state = "state")
    {
        DesktopServices desktop;
        Services services = desktop.services();
        services.appPath = path(app);
        services.installedPath = {};
        services.statePath = path(state);
        return startFaults(services);
    }
    /// The same for a user without rights; their number.
    int faultsOfNobody()
    {
        return inChild([this] { return becomeNobody() ? static_cast<int>(faults().size()) : 99; });
    }
    void allow(const char *place, mode_t mode) { ASSERT_EQ(::chmod(qPrintable(path(place)), mode), 0); }
};
} // namespace

TEST_F(StartFaults, AreNoneWhereAllIsWell)
{
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(StartFaults, AreNoneAtAFirstStartWhereNothingStandsYet)
{
    EXPECT_EQ(faults("app", "state/still/to/be/made"), QStringList());
}

TEST_F(StartFaults, NameTheDataThatAreNotThere)
{
    ASSERT_TRUE(QFile::remove(path("app/Css.tcb")));
    const QStringList found = faults();
    ASSERT_EQ(found.size(), 1);
    EXPECT_THAT(found.first().toStdString(), testing::HasSubstr("(Css.tcb)"));
}

TEST_F(StartFaults, TellAFolderThatTakesNothing)
{
    const QStringList found = faults("app", "app/Html.tcb/state"); // below a file there can be no folder
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first(), QStringLiteral("Unsaved text is not kept safe, and settings may not be: %1 is no folder.")
                                 .arg(path("app/Html.tcb")));
}

TEST_F(StartFaults, TellAReadOnlyHomeAndOneThatCannotBeEntered)
{
    allow("app", 0755);
    allow("state", 0755);
    const int readOnly = faultsOfNobody();
    if (readOnly == 99)
        GTEST_SKIP() << "only root can act as another user";
    EXPECT_EQ(readOnly, 2);
    allow("app", 0777);
    allow("state", 0777);
    EXPECT_EQ(faultsOfNobody(), 0);
    allow("state", 0700);
    EXPECT_EQ(faultsOfNobody(), 1);
}
