#include "browser/pageTrial.h"
#include "desktop/desktopServices.h"
#include "desktop/endSignals.h"
#include "frame/application.h"
#include "pictures/pictureReader.h"
#include "shell/commandLine.h"
#include "widgets/programIcon.h"
#include "widgets/readableStyle.h"

#include <QApplication>

int main(int argc, char **argv)
{
    if (const std::optional<int> status = readPictureIfAsked(argc, argv))
        return *status;
    QApplication desktop(argc, argv);
    useReadableStyle();
    QApplication::setApplicationName(QStringLiteral("tagwrighter"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("tagwrighter"));
    QApplication::setWindowIcon(applicationIcon());
    QApplication::setQuitOnLastWindowClosed(false); // between the splash and the main window there is none

    DesktopServices services;
    if (triesPages())
        return tryPages(services.services().pageViews);
    Application program(services.services());
    QObject::connect(&program, &Application::ended, &desktop, &QCoreApplication::quit, Qt::QueuedConnection);
    const EndSignals signals([&program] { program.endKeepingText(); });
    QObject::connect(&desktop, &QGuiApplication::commitDataRequest, &program,
                     [&program] { program.keepUnsavedText(); });
    program.Main(commandLineText(QApplication::arguments().mid(1)));
    return QApplication::exec();
}
