#include "browser/pageTrial.h"
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
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace
{
/// How the program is to be started anew once it has ended and all that it held is given back.
struct NextStart {
    QString program;
    QStringList arguments;
};

/// The line that a start takes, with the option in front of it that it began with.
QString lineOf(const QStringList &arguments, const Habits &habits)
{
    const bool hasOption = !arguments.isEmpty() &&
                           (arguments.constFirst() == NewInstanceOption || arguments.constFirst() == StartedAnewOption);
    const QString line = commandLineOf(hasOption ? arguments.mid(1) : arguments, habits);
    return hasOption ? QString(arguments.constFirst() + u' ' + line).trimmed() : line;
}

int run(int argc, char **argv, std::optional<NextStart> &next)
{
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
    ProgramStart start;
    const Habits habits = readHabits(services.services().settings);
    const QStringList given = QApplication::arguments().mid(1); // without what the desktop has taken
    if (!start.begin(program, services.services(), lineOf(given, habits)))
        return 0;
    if (program.hasEnded()) // by a signal while it started: what quits the loop below came too early
        return 0;
    const int status = QApplication::exec();
    if (const std::optional<QString> &line = program.startedAnewWith()) {
        next = NextStart{QApplication::applicationFilePath(), {StartedAnewOption}};
        if (!line->isEmpty())
            next->arguments << *line;
    }
    return status;
}
} // namespace

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
    std::optional<NextStart> next;
    const int status = run(argc, argv, next);
    if (next && !QProcess::startDetached(next->program, next->arguments))
        std::fputs("Tagwrighter could not be started anew. Its documents come back at the next start.\n", stderr);
    return status;
}
