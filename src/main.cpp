#include "browser/pageTrial.h"
#include "common/fileHabits.h"
#include "desktop/desktopServices.h"
#include "desktop/programStart.h"
#include "desktop/sessionEnd.h"
#include "frame/application.h"
#include "pictures/pictureReader.h"
#include "services/habits.h"
#include "services/services.h"
#include "shell/commandLine.h"
#include "widgets/programIcon.h"
#include "widgets/readableStyle.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

int main(int argc, char **argv)
{
    if (const std::optional<int> status = readPictureIfAsked(argc, argv))
        return *status;
    // Neither a display nor a home is needed to be told about the program.
    const QStringList arguments(argv + std::min(argc, 1), argv + argc);
    if (const std::optional<QString> answer = answerToCommandLine(arguments, QStringLiteral(TAGWRIGHTER_VERSION))) {
        std::fputs(answer->toUtf8().constData(), stdout);
        return 0;
    }
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
    const SessionEnd end(desktop, program);
    const QStringList given = QApplication::arguments().mid(1); // without what the desktop has taken
    const bool alone = !given.isEmpty() && given.constFirst() == NewInstanceOption;
    const bool several = takesSeveralFiles(readHabits(services.services().settings));
    const QString line = (several ? commandLineOfFiles : commandLineText)(alone ? given.mid(1) : given);
    ProgramStart start;
    if (!start.begin(program, services.services(), alone ? QString(NewInstanceOption + u' ' + line).trimmed() : line))
        return 0;
    if (program.hasEnded()) // by a signal while it started: what quits the loop below came too early
        return 0;
    return QApplication::exec();
}
