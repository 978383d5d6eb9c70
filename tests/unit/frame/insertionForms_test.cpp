#include "insertion/insertionForms.h"

#include "codeknowledge/codeknowledgeForms.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "forms/dialogForm.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "texttools/texttoolsForms.h"
#include "unit/support/fakes.h"
#include "unit/support/spokenNames.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
/// The program over an empty home, with one document on show.
class InsertionFormsTest : public testing::Test
{
protected:
    InsertionFormsTest()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        // The checker says that it has no codes, in a box that nobody answers here, unless they stand in the folder.
        const QString programFolder = home.filePath(QStringLiteral("tagwrighter"));
        QDir().mkpath(programFolder);
        EXPECT_TRUE(QFile::copy(QStringLiteral(TEST_SOURCE_DIR "/data/Html.tcb"), programFolder + "/Html.tcb"));
        desktop = std::make_unique<DesktopServices>(&leftDialogs);
        settings::write(desktop->services().settings, settings::WelcomeScreen, QStringLiteral("false"));
        settings::write(desktop->services().settings, settings::CodeLibDir, home.path());
        application = std::make_unique<Application>(desktop->services());
        application->form(QStringLiteral("frmMdi"))->Show();
        // The checker is on show where there is something that it does not know.
        application->context().mainWindow->activeDocument()->txtEdit().setText(QStringLiteral("<bogus>"));
        settle();
    }
    ~InsertionFormsTest() override
    {
        application.reset();
        settle();
    }

    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList names()
    {
        QStringList all;
        for (const auto &forms : {insertionForms, texttoolsForms, codeknowledgeForms})
            for (const std::unique_ptr<Form> &form : forms(application->context()))
                all.append(form->Name());
        return all;
    }

    QTemporaryDir home;
    AnsweredDialogs leftDialogs; // each is left: the designer of image maps opens with one
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<Application> application;
};

TEST_F(InsertionFormsTest, NameEverythingThatTakesTheKeyboard)
{
    for (const QString &name : names()) {
        Form &form = *application->form(name);
        form.Show();
        EXPECT_EQ(silentControls(*form.window()), QStringList()) << name.toStdString();
        form.Unload();
        settle();
    }
}

TEST_F(InsertionFormsTest, DisableTheMainWindowUntilTheyAreGone)
{
    const MainWindow &mainWindow = *application->context().mainWindow;
    int dialogs = 0;
    for (const QString &name : names()) {
        Form &form = *application->form(name);
        // The grid drops down, palettes, companions and the renaming are modal, and the documents stay usable beside
        // Find, the checker and the check of a page.
        if (!qobject_cast<DialogForm *>(&form))
            continue;
        ++dialogs;
        form.Show();
        EXPECT_FALSE(mainWindow.Enabled()) << name.toStdString();
        form.Unload();
        EXPECT_TRUE(mainWindow.Enabled()) << name.toStdString();
        settle();
    }
    EXPECT_EQ(dialogs, names().size() - 10);
}
} // namespace
