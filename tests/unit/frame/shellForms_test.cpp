// The forms of the shell and of the files, in the whole program.
#include "common/document.h"
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "files/filesForms.h"
#include "files/frmPrintPreview.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "shell/frmMoreOptions.h"
#include "shell/frmOptions.h"
#include "shell/shellForms.h"
#include "unit/support/spokenNames.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QTabBar>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
class ShellFormsTest : public testing::Test
{
protected:
    ShellFormsTest()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        desktop = std::make_unique<DesktopServices>();
        settings::write(store(), settings::WelcomeScreen, QStringLiteral("false"));
        settings::write(store(), settings::FirstHelp, QStringLiteral("true"));
        application = std::make_unique<Application>(desktop->services());
        context().forms.find(QStringLiteral("frmMdi"))->Show();
        settle();
        settings::write(store(), settings::WelcomeScreen, QStringLiteral("true")); // so that the screen itself stays
    }
    ~ShellFormsTest() override
    {
        theme::apply(theme::Desktop);
        application.reset();
        settle();
    }

    SettingsStore &store() { return desktop->services().settings; }
    ProgramContext &context() { return application->context(); }

    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList names()
    {
        QStringList all;
        for (const auto &forms : {shellForms(context()), filesForms(context())})
            for (const std::unique_ptr<Form> &form : forms)
                all.append(form->Name());
        return all;
    }

    QTemporaryDir home;
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<Application> application;
};

TEST_F(ShellFormsTest, NameEverythingThatTakesTheKeyboard)
{
    for (const QString &name : names()) {
        Form &form = *context().forms.find(name);
        form.Show();
        ASSERT_TRUE(form.window()) << name.toStdString();
        const QList<QTabBar *> strips = form.window()->findChildren<QTabBar *>();
        for (int tab = 0; tab < (strips.isEmpty() ? 1 : strips.first()->count()); ++tab) {
            if (!strips.isEmpty())
                strips.first()->setCurrentIndex(tab);
            EXPECT_EQ(silentControls(*form.window()), QStringList()) << name.toStdString() << " " << tab;
        }
        form.discard();
        context().mainWindow->setEnabled(true);
        settle();
    }
}

TEST_F(ShellFormsTest, FitASmallScreen)
{
    context().forms.show<frmOptions>();
    settle();
    const QSize size = context().forms.get<frmOptions>().window()->size();
    EXPECT_LE(size.width(), 1024);
    EXPECT_LE(size.height(), 600 - 30); // and the title bar of the desktop
}

TEST_F(ShellFormsTest, PutTheThemeAndTheFontInForceAtOnce)
{
    theme::apply(theme::Dark);
    const QPalette dark = QApplication::palette();
    EXPECT_LT(dark.color(QPalette::Window).lightness(), dark.color(QPalette::WindowText).lightness());
    theme::apply(theme::Light);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
    theme::apply(theme::Desktop);
    EXPECT_EQ(QApplication::palette().resolveMask(), QPalette().resolveMask());

    Document &document = *context().mainWindow->activeDocument();
    settings::write(store(), settings::EditorFontSize, QStringLiteral("33"));
    document.applyEditorSettings();
    EXPECT_EQ(document.editorFont().pointSize(), 33);
}
} // namespace
