// What the program does when the desktop's session ends.
#include "common/document.h"
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "desktop/sessionEnd.h"
#include "forms/form.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/worker.h"
#include "storage/localFileSystem.h"
#include "storage/recoveryFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

/// Notes what it is asked.
class NotingManager final : public SessionManager
{
public:
    explicit NotingManager(bool lets) : m_lets(lets) {}
    bool allowsInteraction() override
    {
        asked << "may ask";
        return m_lets;
    }
    void release() override { asked << "release"; }
    void cancel() override { asked << "cancel"; }

    QList<std::string> asked;

private:
    bool m_lets;
};

class SessionEnds : public testing::Test
{
protected:
    SessionEnds()
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            qputenv(place, home.path().toUtf8());
        desktop = std::make_unique<DesktopServices>();
        settings::write(desktop->services().settings, settings::WelcomeScreen, QStringLiteral("false"));
        settings::write(desktop->services().settings, settings::BlankDocCode, QStringLiteral("0"));
        application = std::make_unique<Application>(desktop->services());
        application->form(QStringLiteral("frmMdi"))->Show();
        settle();
    }
    ~SessionEnds() override
    {
        application.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the windows, before their timers tick
    }

    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    void typeIntoTwo()
    {
        application->context().mainWindow->activeDocument()->txtEdit().setSelText(QStringLiteral("one"));
        application->context().newBlankDocument()->txtEdit().setSelText(QStringLiteral("two"));
        settle();
    }
    void end(SessionManager &manager)
    {
        answerSessionEnd(manager, [this](bool mayAsk) { return application->mayEndSession(mayAsk); });
    }
    Form &list() { return *application->form(QStringLiteral("frmMsgSaveChanges")); }
    void pressWhenShown(const char *button)
    {
        QTimer::singleShot(50, [this, button] {
            wasShown = list().isLoaded() && list().window()->isVisible();
            if (auto *found = qobject_cast<QAbstractButton *>(list().control(QLatin1String(button))))
                found->click();
        });
    }
    /// What stands in the recovery folder, seen by another program that comes later.
    qsizetype kept()
    {
        application.reset();
        LocalFileSystem disk;
        RecoveryFolder folder(disk, desktop->services().statePath);
        desktop->services().worker.finish();
        return folder.takeOver().pages.size();
    }

    QTemporaryDir home;
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<Application> application;
    bool wasShown = false;
};

TEST_F(SessionEnds, WaitsForTheListOfUnsavedFiles)
{
    typeIntoTwo();
    NotingManager manager(true);
    pressWhenShown("cmdNo");
    end(manager);
    EXPECT_TRUE(wasShown);
    EXPECT_THAT(manager.asked, ElementsAre("may ask", "release"));
    EXPECT_TRUE(application->hasEnded());
    EXPECT_EQ(kept(), 0) << "the user has given the text up";
}

TEST_F(SessionEnds, GoesOnWhereTheUserStays)
{
    typeIntoTwo();
    NotingManager manager(true);
    pressWhenShown("cmdCancel");
    end(manager);
    EXPECT_TRUE(wasShown);
    EXPECT_THAT(manager.asked, ElementsAre("may ask", "release", "cancel"));
    EXPECT_FALSE(application->hasEnded());
    EXPECT_TRUE(application->context().mainWindow->Enabled());
    EXPECT_EQ(kept(), 2);
}

TEST_F(SessionEnds, KeepsTheTextWhereNobodyMayBeAsked)
{
    typeIntoTwo();
    NotingManager manager(false);
    end(manager);
    EXPECT_FALSE(list().isLoaded());
    EXPECT_THAT(manager.asked, ElementsAre("may ask"));
    EXPECT_FALSE(application->hasEnded()) << "the session may yet go on";
    EXPECT_EQ(kept(), 2);
}

TEST_F(SessionEnds, AsksNothingWhereAllIsSaved)
{
    NotingManager manager(true);
    end(manager);
    EXPECT_THAT(manager.asked, ElementsAre("may ask", "release"));
    EXPECT_FALSE(application->hasEnded());
    EXPECT_EQ(kept(), 0);
}
// The splash lets events run in its load, and a signal may be among them.
TEST(AStart, MayEndWhileTheSplashIsLoaded)
{
    QTemporaryDir home;
    for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(place, home.path().toUtf8());
    DesktopServices desktop;
    Application application(desktop.services());
    int ends = 0;
    QObject::connect(&application, &Application::ended, [&] { ++ends; });
    QTimer::singleShot(0, &application, [&] { application.endKeepingText(); });
    application.Main({});
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(application.hasEnded());
    EXPECT_FALSE(application.form(QStringLiteral("frmSplash"))->isLoaded());
    EXPECT_FALSE(application.form(QStringLiteral("frmMdi"))->isLoaded());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace
