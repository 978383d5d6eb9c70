// Starting and ending the program, and what else happens in time.
#include "common/mainWindow.h"
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/properties.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/testForms.h"
#include "drive/told.h"
#include "forms/form.h"
#include "frame/application.h"

#include <QElapsedTimer>
#include <QPointer>
#include <cmath>

namespace drive
{
namespace
{
int numberOf(Stage &stage, const QString &word, int fewest)
{
    bool ok = false;
    const int number = word.toInt(&ok);
    if (!ok || number < fewest)
        stage.referee.wrong(QStringLiteral("%1 is no number from %2 on").arg(word).arg(fewest));
    return number;
}

Timer &timerOf(Stage &stage, const Target &target)
{
    auto *timer = dynamic_cast<Timer *>(target.control);
    if (!timer)
        stage.referee.wrong(QStringLiteral("%1 is no timer").arg(target.name));
    return *timer;
}

void fire(Stage &stage, const QString &name)
{
    Timer &timer = timerOf(stage, findTimer(stage, name));
    if (!timer.Enabled() || timer.Interval() <= 0)
        stage.referee.fail(QStringLiteral("the timer %1 enabled").arg(name),
                           timer.Enabled() ? QStringLiteral("it without an interval") : QStringLiteral("it disabled"));
    insideEvent([&] { timer.fire(); });
    settle();
}

void launch(Stage &stage, const Line &line)
{
    insideEvent([&] { stage.launch(line.words.value(0)); });
    settle();
    fire(stage, QStringLiteral("frmSplash.Timer1"));
}

void start(Stage &stage, const Line &line)
{
    if (stage.hasStarted())
        stage.referee.wrong(QStringLiteral("the program was started already; `restart` starts it again"));
    launch(stage, line);
}

void restart(Stage &stage, const Line &line)
{
    if (!stage.hasStarted() || stage.isRunning())
        stage.referee.fail(QStringLiteral("the program ended before it is started again"),
                           stage.hasStarted() ? QStringLiteral("it running") : QStringLiteral("it not started"));
    launch(stage, line);
}

void exitProgram(Stage &stage, const Line &)
{
    Form *mainForm = stage.program().form(QStringLiteral("frmMdi"));
    if (!mainForm || !mainForm->window())
        stage.referee.fail(QStringLiteral("frmMdi loaded"), QStringLiteral("it not loaded"));
    mainForm->window()->close();
}

void expectEnded(Stage &stage, const Line &)
{
    if (!stage.hasStarted() || stage.isRunning())
        stage.referee.fail(QStringLiteral("the program ended"),
                           stage.hasStarted() ? QStringLiteral("it running") : QStringLiteral("it not started"));
}

void expectRunning(Stage &stage, const Line &)
{
    stage.program();
}

void tick(Stage &stage, const Line &line)
{
    const int times = line.words.size() > 1 ? numberOf(stage, line.words[1], 1) : 1;
    for (int i = 0; i < times; ++i)
        fire(stage, line.words[0]);
}

void waitFor(Stage &stage, const Line &line)
{
    const QString &name = line.words[0];
    const QString &property = line.words[1];
    const int limit = line.words.size() > 3 ? numberOf(stage, line.words[3], 0) : 5000;
    std::optional<QString> got;
    const bool came = comesTrue(
        [&] {
            const auto target = awaitTarget(stage, name);
            got = target ? tryReadTarget(stage, *target, property) : std::nullopt;
            return got == line.words[2];
        },
        limit);
    if (!came)
        stage.referee.fail(
            QStringLiteral("%1 %2 %3 within %4 ms").arg(name, property, quoted(line.words[2])).arg(limit),
            got ? quotedAgainst(line.words[2], *got) : QStringLiteral("no such property by then"));
}

void pass(Stage &stage, const Line &line)
{
    bool ok = false;
    const double seconds = line.words[0].toDouble(&ok);
    if (!ok || seconds < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number of seconds").arg(line.words[0]));
    const auto milliseconds = static_cast<qint64>(std::llround(seconds * 1000));
    QDateTime &now = stage.desktop.clock.moment;
    const QDateTime begin = now;
    stage.desktop.timers.pass(milliseconds, [&](qint64 passed, const std::function<void()> &fireTimer) {
        now = begin.addMSecs(passed);
        insideEvent(fireTimer);
        settle();
        stage.playShownForms();
    });
    now = begin.addMSecs(milliseconds);
}

void killProgram(Stage &stage, const Line &)
{
    if (!stage.hasStarted())
        stage.program(); // which tells that there is none
    stage.killProgram(); // one that has ended leaves its process, which goes here
}

void startSecond(Stage &stage, const Line &line)
{
    stage.program();
    stage.secondStarts.start(line.words.value(0));
}

void setClock(Stage &stage, const Line &line)
{
    const QDateTime moment = QDateTime::fromString(line.words[0], Qt::ISODate);
    if (!moment.isValid())
        stage.referee.wrong(QStringLiteral("%1 is no moment such as 2026-03-01T14:05:09").arg(line.words[0]));
    stage.desktop.clock.moment = moment;
}

void seed(Stage &stage, const Line &line)
{
    stage.desktop.seed(static_cast<quint32>(numberOf(stage, line.words[0], 0)));
}

void testForm(Stage &stage, const Line &line)
{
    Application &program = stage.program();
    const QString &name = line.words[0];
    if (!program.form(name)) {
        auto form = makeTestForm(program.context(), name);
        if (!form)
            stage.referee.wrong(QStringLiteral("there is no test form %1; there are %2")
                                    .arg(name, testFormNames().join(QStringLiteral(", "))));
        program.forms().own(std::move(form));
    }
    program.form(name)->Show();
}

constexpr Command commands[] = {
    {"start", 0, 1, start},
    {"exit", 0, 0, exitProgram},
    {"restart", 0, 1, restart},
    {"expect-ended", 0, 0, expectEnded},
    {"expect-running", 0, 0, expectRunning},
    {"tick", 1, 2, tick},
    {"wait-for", 3, 4, waitFor},
    {"pass", 1, 1, pass},
    {"kill", 0, 0, killProgram},
    {"start-second", 0, 1, startSecond},
    {"clock", 1, 1, setClock},
    {"seed", 1, 1, seed},
    {"test-form", 1, 1, testForm},
};
} // namespace

std::span<const Command> lifeCommands()
{
    return commands;
}
} // namespace drive
