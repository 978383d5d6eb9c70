#include "frame/documentMarks.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "forms/form.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "widgets/tabStrip.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

TEST(DocumentMarks, ShowUnsavedTextInTabAndTitleAndLeaveTheCaptions)
{
    const QTemporaryDir home;
    for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(place, home.path().toUtf8());
    DesktopServices desktop;
    settings::write(desktop.services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    Application application(desktop.services());
    Form &frmMdi = *application.form(QStringLiteral("frmMdi"));
    frmMdi.Show();
    QApplication::processEvents();
    Document &document = *application.context().mainWindow->activeDocument();
    document.setDocumentCaption(QStringLiteral("a[*]b.html"));
    document.boolDirty = false;
    auto &marks = *frmMdi.window()->findChild<DocumentMarks *>();
    auto &tabs = *frmMdi.window()->findChild<TabStrip *>(QStringLiteral("tabDocSel"));
    QWidget &window = *dynamic_cast<Form &>(document).window();
    marks.update();
    const qint64 plain = tabs.tabIcon(0).cacheKey();
    const QString caption = tabs.tabText(0);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("a[*][*]b.html[*]"));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(frmMdi.window()->isWindowModified());

    document.boolDirty = true;
    marks.update();
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(frmMdi.window()->isWindowModified());
    EXPECT_NE(tabs.tabIcon(0).cacheKey(), plain);
    EXPECT_EQ(tabs.tabText(0), caption);
    EXPECT_EQ(document.documentCaption(), QStringLiteral("a[*]b.html"));

    document.boolDirty = false;
    marks.update();
    EXPECT_FALSE(frmMdi.window()->isWindowModified());
    EXPECT_EQ(tabs.tabIcon(0).cacheKey(), plain);
}

TEST(DocumentMarks, ShowTheHomeAsATildeByTheRulesOfToday)
{
    const QTemporaryDir home;
    for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(place, home.path().toUtf8());
    DesktopServices desktop;
    settings::write(desktop.services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    for (const bool today : {false, true}) {
        settings::write(desktop.services().settings, settings::EditingHabits,
                        today ? QStringLiteral("today") : QStringLiteral("classic"));
        Application application(desktop.services());
        Form &frmMdi = *application.form(QStringLiteral("frmMdi"));
        frmMdi.Show();
        QApplication::processEvents();
        Document &document = *application.context().mainWindow->activeDocument();
        application.context().mainWindow->takeOverHabits();
        document.boolDirty = false;
        auto &marks = *frmMdi.window()->findChild<DocumentMarks *>();
        const QWidget &window = *dynamic_cast<Form &>(document).window();
        const QString inHome = home.path() + QStringLiteral("/site/a.html");
        document.setDocumentCaption(inHome);
        marks.update();
        EXPECT_EQ(window.windowTitle(), today ? QStringLiteral("~/site/a.html[*]") : inHome + QStringLiteral("[*]"));
        EXPECT_EQ(document.documentCaption(), inHome);
        document.setDocumentCaption(home.path() + QStringLiteral("2/a.html")); // another folder
        marks.update();
        EXPECT_EQ(window.windowTitle(), home.path() + QStringLiteral("2/a.html[*]"));
    }
}
