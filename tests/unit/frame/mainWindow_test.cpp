#include "common/mainWindow.h"
#include "common/programState.h"
#include "desktop/desktopServices.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiTables.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "services/timer.h"
#include "unit/support/servicesOver.h"
#include "widgets/screenPointer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QToolBar>

namespace
{
/// Keeps what it is asked to show and gives the answer that is set.
class RecordedBoxes final : public MessageBoxes
{
public:
    MessageAnswer show(const MessageBox &box) override
    {
        shown.append(box);
        return answer;
    }

    QList<MessageBox> shown;
    MessageAnswer answer = MessageAnswer::OK;
};

/// The program over an empty home, its main window loaded without splash and Welcome screen.
class MainWindowTest : public testing::Test
{
protected:
    MainWindowTest()
        : desktop(desktopAt(home.path())), services(servicesOver(desktop->services(), {.messageBoxes = &boxes}))
    {
        settings::write(services.settings, settings::WelcomeScreen, QStringLiteral("false"));
        settings::write(services.settings, settings::WinState, QStringLiteral("0"));
        for (const auto &[key, value] : {std::pair{&settings::WinWidth, 1100}, std::pair{&settings::WinHeight, 700}})
            settings::write(services.settings, *key, QString::number(value));
    }

    ~MainWindowTest() override { settle(); }

    frmMdi &start()
    {
        application = std::make_unique<Application>(services);
        application->form(QStringLiteral("frmMdi"))->Show();
        settle();
        return *dynamic_cast<frmMdi *>(application->form(QStringLiteral("frmMdi")));
    }

    template <class T>
    T &control(const char *name)
    {
        return *qobject_cast<T *>(application->form(QStringLiteral("frmMdi"))->control(QString::fromLatin1(name)));
    }

    ProjectState &openProject()
    {
        control<QLineEdit>("txtPrjPath").setText(QStringLiteral("/site/site.tsp"));
        ProjectState &project = application->context().state.project;
        project.ProjectChanged = true;
        project.save = [this] { return ++saves > 0; };
        return project;
    }

    QString stored(const settings::Key &key, int number = 0)
    {
        return settings::readStored(services.settings, key, number);
    }

    static void settle()
    {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    QTemporaryDir home;
    RecordedBoxes boxes;
    std::unique_ptr<DesktopServices> desktop;
    Services services;
    std::unique_ptr<Application> application;
    int saves = 0;

private:
    static std::unique_ptr<DesktopServices> desktopAt(const QString &folder)
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(place, folder.toUtf8());
        return std::make_unique<DesktopServices>();
    }
};
} // namespace

TEST_F(MainWindowTest, anExitAsksAboutAChangedProjectFirst)
{
    frmMdi &mdi = start();
    openProject();
    boxes.answer = MessageAnswer::Cancel;
    settings::write(services.settings, settings::WinWidth, QStringLiteral("1"));
    EXPECT_FALSE(mdi.Unload());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Save Changes to Project File"));
    EXPECT_EQ(boxes.shown[0].text,
              QStringLiteral("The open project file has not been saved since it was last modified. "
                             "Do you want to save changes now?"));
    EXPECT_EQ(boxes.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(boxes.shown[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(saves, 0);
    EXPECT_FALSE(mdi.ExitInProgress);
    EXPECT_FALSE(application->hasEnded());
    EXPECT_NE(stored(settings::WinWidth), QStringLiteral("1")) << "the placement is kept even if the user then stays";
    EXPECT_TRUE(stored(settings::CodebarWidth).isEmpty()) << "the pane's width is not, as nothing was unloaded";
}

TEST_F(MainWindowTest, yesSavesTheProjectAndNoDoesNot)
{
    for (const auto &[answer, expected] : {std::pair{MessageAnswer::Yes, 1}, std::pair{MessageAnswer::No, 0}}) {
        saves = 0;
        frmMdi &mdi = start();
        openProject();
        boxes.answer = answer;
        EXPECT_TRUE(mdi.Unload());
        EXPECT_EQ(saves, expected);
        EXPECT_TRUE(application->hasEnded());
    }
}

TEST_F(MainWindowTest, withoutAChangedProjectThereIsNoQuestion)
{
    start();
    openProject().ProjectChanged = false;
    EXPECT_TRUE(application->form(QStringLiteral("frmMdi"))->Unload());
    start();
    application->context().state.project.ProjectChanged = true; // but no project is open
    EXPECT_TRUE(application->form(QStringLiteral("frmMdi"))->Unload());
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(MainWindowTest, theSplashTellsTheVersionAndHandsOverAfterItsTime)
{
    application = std::make_unique<Application>(services);
    application->Main({});
    Form &splash = *application->form(QStringLiteral("frmSplash"));
    ASSERT_TRUE(splash.Visible());
    const auto *version = qobject_cast<QLabel *>(splash.control(QStringLiteral("lblVersion")));
    EXPECT_EQ(version->text(), QStringLiteral("Release Version: ") + application->context().version);
    auto *timer = dynamic_cast<Timer *>(splash.control(QStringLiteral("Timer1")));
    ASSERT_TRUE(timer);
    EXPECT_EQ(timer->Interval(), 850);
    EXPECT_TRUE(timer->Enabled());
    EXPECT_FALSE(application->form(QStringLiteral("frmMdi"))->isLoaded());
    timer->fire();
    EXPECT_FALSE(splash.isLoaded());
    EXPECT_TRUE(application->form(QStringLiteral("frmMdi"))->Visible());
    EXPECT_EQ(application->context().screenPointer.MousePointer(), PointerShape::Default);
}

TEST_F(MainWindowTest, aSecondRunIsAWindowOfItsOwnOverTheSameSettings)
{
    settings::write(services.settings, settings::WelcomeScreen, QStringLiteral("false"));
    frmMdi &first = start();
    const std::unique_ptr<Application> firstRun = std::move(application);
    frmMdi &second = start();
    ASSERT_NE(&first, &second);
    EXPECT_EQ(first.activeDocument()->documentCaption(), QStringLiteral("Untitled1"));
    EXPECT_EQ(second.activeDocument()->documentCaption(), QStringLiteral("Untitled1")) << "numbering is each run's own";
    firstRun->context().newBlankDocument();
    EXPECT_EQ(first.openDocuments().size(), 2);
    EXPECT_EQ(second.openDocuments().size(), 1);
    second.window()->setWindowState(Qt::WindowNoState);
    first.window()->setWindowState(Qt::WindowMaximized);
    settle();
    EXPECT_TRUE(second.Unload());
    EXPECT_EQ(stored(settings::WinState), QStringLiteral("0"));
    EXPECT_FALSE(firstRun->hasEnded());
    EXPECT_TRUE(first.Unload());
    EXPECT_EQ(stored(settings::WinState), QStringLiteral("2")) << "the last to close writes its placement over";
}

TEST_F(MainWindowTest, theUnloadKeepsThePanesWidthAndFiveBands)
{
    settings::write(services.settings, settings::SaveSettingsOnExit, QStringLiteral("false"));
    start().Unload();
    EXPECT_EQ(stored(settings::CodebarWidth), QStringLiteral("4125"));
    for (int band = 1; band <= 5; ++band) {
        EXPECT_EQ(stored(settings::BarNewRow, band),
                  band == 2 || band == 4 ? QStringLiteral("False") : QStringLiteral("True"));
        EXPECT_GT(stored(settings::BarWidth, band).toDouble(), 0) << band;
    }
    EXPECT_TRUE(stored(settings::BarNewRow, 6).isEmpty());
}

TEST_F(MainWindowTest, whatWasKeptAtOneExitLooksTheSameAtTheNextStart)
{
    start().Unload();
    QStringList first;
    for (int band = 1; band <= 5; ++band)
        first.append(stored(settings::BarWidth, band));
    settle();
    start().Unload();
    for (int band = 1; band <= 5; ++band)
        EXPECT_EQ(stored(settings::BarWidth, band), first[band - 1]) << band;
}

TEST_F(MainWindowTest, toolbarsFitAtTheDesignWidth)
{
    start();
    for (const char *name : {"tbrMain", "tbrFontStyles", "tbrInsert", "tbrCode", "tbrHelp", "tbrBrowser"}) {
        const QToolBar &bar = control<QToolBar>(name);
        EXPECT_GE(bar.width(), bar.sizeHint().width()) << name;
    }
}

TEST_F(MainWindowTest, everyButtonHasAToolTipAndAnIcon)
{
    start();
    for (const QToolBar *bar : application->form(QStringLiteral("frmMdi"))->window()->findChildren<QToolBar *>())
        for (const QAction *action : bar->actions()) {
            if (action->isSeparator() || action->objectName().isEmpty())
                continue;
            EXPECT_FALSE(action->toolTip().isEmpty()) << action->objectName().toStdString();
            EXPECT_FALSE(action->icon().isNull()) << action->objectName().toStdString();
        }
    EXPECT_EQ(control<QAction>("tbrMain(Save)").toolTip(), QStringLiteral("Save (Ctrl+S)"));
}

TEST_F(MainWindowTest, everyIconInTheMenusHasItsDrawing)
{
    start();
    for (const MenuCommand &command : menuCommands()) {
        if (*command.icon) {
            EXPECT_FALSE(control<QAction>(command.name).icon().isNull()) << command.name;
        }
    }
}

TEST_F(MainWindowTest, theRecentFilesAreShownWithTheirDash)
{
    frmMdi &mdi = start();
    EXPECT_FALSE(control<QAction>("mnuDashUpdates").isVisible());
    mdi.showRecentFiles({QStringLiteral("/a & b.htm"), QString(), QStringLiteral("/c.htm")});
    EXPECT_TRUE(control<QAction>("mnuDashUpdates").isVisible());
    EXPECT_EQ(control<QAction>("mnuRecentFile(1)").text(), QStringLiteral("/a && b.htm"));
    EXPECT_FALSE(control<QAction>("mnuRecentFile(2)").isVisible());
    EXPECT_TRUE(control<QAction>("mnuRecentFile(3)").isVisible());
    EXPECT_FALSE(control<QAction>("mnuRecentFile(4)").isVisible());
}

TEST_F(MainWindowTest, onlyF6MovesBetweenThePanes)
{
    frmMdi &mdi = start();
    EXPECT_FALSE(mdi.MoveToNextPane(Qt::Key_F5, FocusPlace::Source));
    EXPECT_FALSE(mdi.MoveToNextPane(Qt::Key_unknown, FocusPlace::Project));
    EXPECT_TRUE(mdi.MoveToNextPane(Qt::Key_F6, FocusPlace::Source));
    mdi.activeDocument()->unload();
    EXPECT_FALSE(mdi.MoveToNextPane(Qt::Key_F6, FocusPlace::Project));
}

TEST_F(MainWindowTest, theFileFormatStandsBesideTheMessage)
{
    frmMdi &mdi = start();
    mdi.showFileFormat(QStringLiteral("UTF-8, CR LF"));
    mdi.SetStatusText(QStringLiteral("<b>plain</b>"));
    EXPECT_EQ(mdi.statusText(), QStringLiteral("<b>plain</b>"));
}

// A global menu of the desktop triggers actions past every filter of input.
TEST_F(MainWindowTest, CommandsDoNothingWhileTheWindowIsDisabledWhateverWayTheyCome)
{
    frmMdi &form = start();
    const qsizetype open = form.openDocuments().size();
    form.setEnabled(false);
    for (const char *name : {"tbrMain(New)", "mnuExit", "mnuSelectAll"})
        control<QAction>(name).trigger();
    settle();
    EXPECT_EQ(form.openDocuments().size(), open);
    EXPECT_FALSE(application->hasEnded());
    form.setEnabled(true);
    control<QAction>("tbrMain(New)").trigger();
    settle();
    EXPECT_EQ(form.openDocuments().size(), open + 1);
}
