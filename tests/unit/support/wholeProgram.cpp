#include "unit/support/wholeProgram.h"

#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTabBar>

WholeProgram::WholeProgram()
{
    for (const char *place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(place, home.path().toUtf8());
    const QString data = home.filePath(QStringLiteral("tagwrighter"));
    QDir().mkpath(data);
    for (const QString &name : {QStringLiteral("Html.tcb"), QStringLiteral("Css.tcb"), QStringLiteral("Page.rules")})
        EXPECT_TRUE(QFile::link(QStringLiteral(TEST_SOURCE_DIR "/data/") + name, data + u'/' + name));
    desktop = std::make_unique<DesktopServices>();
    settings::write(desktop->services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    application = std::make_unique<Application>(desktop->services());
    application->form(QStringLiteral("frmMdi"))->Show();
    settle();
    QObject::connect(&m_closer, &QTimer::timeout, [] {
        if (QWidget *box = QApplication::activeModalWidget())
            box->close();
    });
    m_closer.start(20);
}

WholeProgram::~WholeProgram()
{
    application.reset();
    settle();
}

void WholeProgram::settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WholeProgram::forEachDialog(const std::function<void(Form &)> &look)
{
    int dialogs = 0;
    for (const QString &name : application->forms().names()) {
        Form &form = *application->form(name);
        if (form.isLoaded() || name == u"frmSplash")
            continue;
        form.Load();
        if (form.isLoaded() && qobject_cast<QDialog *>(form.window())) {
            ++dialogs;
            look(form);
        }
        form.discard();
        application->context().mainWindow->setEnabled(true);
        settle();
    }
    EXPECT_GT(dialogs, 15);
}

void WholeProgram::present(Form &form)
{
    form.Show();
    settle();
}

void forEachPage(const QWidget &window, const std::function<void()> &look)
{
    const QList<QTabBar *> strips = window.findChildren<QTabBar *>();
    if (strips.isEmpty())
        return look();
    for (int page = 0; page < strips.first()->count(); ++page) {
        strips.first()->setCurrentIndex(page);
        look();
    }
}
