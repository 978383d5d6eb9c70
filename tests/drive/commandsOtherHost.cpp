// Another host, and what pages send to it.
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/otherHost.h"
#include "drive/patterns.h"
#include "drive/stage.h"
#include "drive/told.h"

#include <QRegularExpression>

namespace drive
{
namespace
{
constexpr int LongestWait = 5000; // milliseconds
constexpr int Stragglers = 700;   // milliseconds in which what was sent arrives on this machine, silent ones included

void startOtherHost(Stage &stage, const Line &)
{
    stage.desktop.otherHost = std::make_unique<OtherHost>();
    if (!stage.desktop.otherHost->isListening())
        stage.referee.wrong(QStringLiteral("no port could be had for the other host"));
}

OtherHost &otherHost(Stage &stage)
{
    if (!stage.desktop.otherHost)
        stage.referee.wrong(QStringLiteral("there is no other host; `other-host` starts it"));
    return *stage.desktop.otherHost;
}

void expectRequest(Stage &stage, const Line &line)
{
    auto &requests = otherHost(stage).requests;
    const QRegularExpression pattern = wholePattern(stage, line.words[0]);
    const QString expected = QStringLiteral("a request that matches %1").arg(line.words[0]);
    if (!comesTrue([&] { return !requests.isEmpty(); }, LongestWait))
        stage.referee.fail(expected, QStringLiteral("none"));
    const QString got = requests.take();
    if (!pattern.match(got).hasMatch())
        stage.referee.fail(expected, quoted(got));
}

void expectNoRequest(Stage &stage, const Line &)
{
    auto &requests = otherHost(stage).requests;
    letPass(Stragglers);
    if (!requests.isEmpty())
        stage.referee.fail(QStringLiteral("no request"), quoted(requests.oldest()));
}

constexpr Command commands[] = {
    {"other-host", 0, 0, startOtherHost},
    {"expect-request", 1, 1, expectRequest},
    {"expect-no-request", 0, 0, expectNoRequest},
};
} // namespace

std::span<const Command> otherHostCommands()
{
    return commands;
}
} // namespace drive
