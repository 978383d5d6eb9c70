// What the main window does while a wizard runs.
#include "common/document.h"
#include "common/programState.h"
#include "desktop/desktopServices.h"
#include "desktop/wizardPrograms.h"
#include "extensions/modWizards.h"
#include "forms/form.h"
#include "frame/application.h"
#include "services/settings.h"
#include "unit/support/fakes.h"
#include "unit/support/servicesOver.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class RunningWizard : public testing::Test
{
protected:
    RunningWizard()
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            qputenv(place, home.path().toUtf8());
        desktop = std::make_unique<DesktopServices>();
        Services &real = desktop->services();
        settings::write(real.settings, settings::WelcomeScreen, q("false"));
        settings::write(real.settings, settings::BlankDocCode, q("0"));
        services = std::make_unique<Services>(servicesOver(
            real, {.messageBoxes = &boxes, .wizards = &wizards, .appPath = home.path(), .statePath = home.path()}));
        application = std::make_unique<Application>(*services);
        mainForm().Show();
    }
    ~RunningWizard() override
    {
        application.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Form &mainForm() { return *application->form(q("frmMdi")); }
    MainWindow &mainWindow() { return *application->context().mainWindow; }
    void script(const char *body)
    {
        QFile file(home.filePath(q("NewPageWizard")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + body);
        file.close();
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    QTemporaryDir home;
    AnsweredBoxes boxes;
    WizardPrograms wizards{{home.path()}, {}};
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<Services> services;
    std::unique_ptr<Application> application;
};

TEST_F(RunningWizard, IsEndedByTheCloseBox)
{
    script("echo; echo half; exec sleep 20");
    bool enabledMeanwhile = true;
    QTimer::singleShot(200, [&] {
        enabledMeanwhile = mainWindow().Enabled();
        mainForm().window()->close();
    });
    QElapsedTimer time;
    time.start();
    RunWizard(application->context(), 1);
    EXPECT_LT(time.elapsed(), 5000);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(mainWindow().Enabled());
    EXPECT_TRUE(mainForm().isLoaded()); // the program itself goes on
    EXPECT_EQ(mainWindow().activeDocument()->txtEdit().Text(), QString());
    EXPECT_FALSE(mainWindow().activeDocument()->boolDirty);
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_FALSE(application->context().state.stopWizard);
}

TEST_F(RunningWizard, WritesIntoTheDocumentOfItsStart)
{
    script("sleep 0.3; echo; printf '<p>'");
    Document &first = *mainWindow().activeDocument();
    QTimer::singleShot(50, [&] { application->context().newBlankDocument(); });
    RunWizard(application->context(), 1);
    EXPECT_EQ(first.txtEdit().Text(), q("<p>"));
    EXPECT_TRUE(first.boolDirty);
    EXPECT_EQ(mainWindow().openDocuments().size(), 2);
}

TEST_F(RunningWizard, WritesIntoANewDocumentWhereThatHasGone)
{
    script("sleep 0.3; echo; printf '<p>'");
    const int number = mainWindow().activeDocument()->DocNumber;
    QTimer::singleShot(50, [&] { mainWindow().activeDocument()->unload(); });
    RunWizard(application->context(), 1);
    ASSERT_EQ(mainWindow().openDocuments().size(), 1);
    EXPECT_NE(mainWindow().activeDocument()->DocNumber, number);
    EXPECT_EQ(mainWindow().activeDocument()->txtEdit().Text(), q("<p>"));
}

TEST_F(RunningWizard, TellsWhatItNotifies)
{
    script("echo 'Question 1 of 3' >&2; sleep 0.3");
    QString meanwhile;
    QTimer::singleShot(200, [&] { meanwhile = mainWindow().statusText(); });
    RunWizard(application->context(), 1);
    EXPECT_EQ(meanwhile, q("Question 1 of 3"));
    EXPECT_EQ(mainWindow().statusText(), q("Ready"));
}

TEST_F(RunningWizard, LosesItsResultToAProgramThatEnds)
{
    script("exec sleep 20");
    QTimer::singleShot(200, [&] { application->End(); });
    QTimer::singleShot(400, [&] { application->context().state.stopWizard(); });
    RunWizard(application->context(), 1);
    EXPECT_TRUE(application->hasEnded());
    EXPECT_TRUE(boxes.shown.isEmpty());
}
} // namespace
