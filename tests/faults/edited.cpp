// The program as it is started, with a user in it who has just typed:
//   edited PAGE [list|box]
// opens the page, types into it, and then prints a line. With "list" the list of unsaved files is on show by then, with
// "box" a modal dialog.
#include "common/document.h"
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "desktop/sessionEnd.h"
#include "files/frmWhatChanged.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace
{
void tellReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

void type(Application &program, const QString &mode)
{
    program.context().mainWindow->activeDocument()->txtEdit().setSelText(QStringLiteral("typed "));
    QTimer::singleShot(0, tellReady);
    if (mode == QLatin1String("list")) {
        program.context().newBlankDocument()->txtEdit().setSelText(QStringLiteral("more "));
        program.form(QStringLiteral("frmMdi"))->window()->close();
    }
    if (mode == QLatin1String("box"))
        program.forms().showModal<frmWhatChanged>();
}
} // namespace

int main(int argc, char **argv)
{
    QApplication desktop(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    DesktopServices services;
    settings::write(services.services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    Application program(services.services());
    QObject::connect(&program, &Application::ended, &desktop, &QCoreApplication::quit, Qt::QueuedConnection);
    const SessionEnd end(desktop, program);
    const QStringList words = QApplication::arguments();
    program.Main(words.value(1));
    QTimer wait;
    QObject::connect(&wait, &QTimer::timeout, [&] {
        for (Document *document :
             program.context().mainWindow ? program.context().mainWindow->openDocuments() : QList<Document *>()) {
            if (document->DocSavePath != words.value(1) || !wait.isActive())
                continue;
            wait.stop();
            document->activate();
            type(program, words.value(2));
        }
    });
    wait.start(10);
    return QApplication::exec();
}
