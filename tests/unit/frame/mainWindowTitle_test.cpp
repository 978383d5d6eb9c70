#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "forms/form.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

TEST(MainWindowTitle, NamesTheDocumentThatWasOpenedBeforeTheWindowWasOnShow)
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    DesktopServices desktop;
    settings::write(desktop.services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    Application application(desktop.services());
    Form &frmMdi = *application.form(QStringLiteral("frmMdi"));
    frmMdi.Load();
    Document *document = application.context().mainWindow->activeDocument();
    if (!document)
        document = application.context().newBlankDocument();
    document->setDocumentCaption(QStringLiteral("page.html"));
    frmMdi.Show();
    QApplication::processEvents();
    EXPECT_EQ(frmMdi.window()->windowTitle(), QStringLiteral("Tagwrighter - [page.html]"));
}
