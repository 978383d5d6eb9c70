// Servers, networks and wizards.
#include "common/mainWindow.h"
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/patterns.h"
#include "drive/stage.h"
#include "drive/told.h"
#include "frame/application.h"

#include <QFile>
#include <QRegularExpression>

namespace drive
{
namespace
{
int wholeNumber(Stage &stage, const QString &word)
{
    bool ok = false;
    const int number = word.toInt(&ok);
    if (!ok || number < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number from 0 on").arg(word));
    return number;
}

void serve(Stage &stage, const Line &line)
{
    const QString &kind = line.words[0];
    const bool web = kind == QStringLiteral("http");
    if (!web && kind != QStringLiteral("ftp"))
        stage.referee.wrong(QStringLiteral("%1 is no kind of server: http, ftp").arg(kind));
    if (!web && line.words.size() < 4)
        stage.referee.wrong(QStringLiteral("the FTP server needs a folder, a user and a password"));
    QString reason;
    if (!stage.servers.serve(kind, line.words.mid(1), reason))
        stage.referee.fail(QStringLiteral("the server to come up"), reason);
    stage.keepThroughKill(line);
}

void tellServer(Stage &stage, const QString &kind, const QString &command)
{
    if (!stage.servers.tell(kind, command))
        stage.referee.wrong(QStringLiteral("no %1 server obeys \"%2\"").arg(kind, command));
}

void serveSlowly(Stage &stage, const Line &line)
{
    tellServer(stage, line.words[0], QStringLiteral("slowly %1").arg(wholeNumber(stage, line.words[1])));
    stage.keepThroughKill(line);
}

/// `serve-cut http|ftp [BYTES]`, `serve-full http|ftp [BYTES]`: without a number, no more.
template <const char *Word>
void serveWord(Stage &stage, const Line &line)
{
    QString command = QLatin1String(Word);
    if (line.words.size() > 1)
        command += u' ' + QString::number(wholeNumber(stage, line.words[1]));
    tellServer(stage, line.words[0], command);
    stage.keepThroughKill(line);
}
constexpr char CutWord[] = "cut";
constexpr char FullWord[] = "full";

void serveNoMore(Stage &stage, const Line &line)
{
    if (!stage.servers.kill(line.words[0]))
        stage.referee.wrong(QStringLiteral("there is no %1 server").arg(line.words[0]));
}

void network(Stage &stage, const Line &line)
{
    if (line.words[0] != QStringLiteral("on") && line.words[0] != QStringLiteral("off"))
        stage.referee.wrong(QStringLiteral("the network is on or off"));
    stage.transfers.connected = line.words[0] == QStringLiteral("on");
    stage.keepThroughKill(line);
}

void failTransfer(Stage &stage, const Line &line)
{
    stage.transfers.failNext(line.words[0]);
}

void wizardServer(Stage &stage, const Line &line)
{
    stage.wizards.names = line.words[0];
    stage.keepThroughKill(line);
}

void wizardResult(Stage &stage, const Line &line)
{
    stage.wizards.queue({line.words[0], wholeNumber(stage, line.words[1]) != 0});
}

void expectWizard(Stage &stage, const Line &line)
{
    const QString expected = QStringLiteral("the start of wizard %1").arg(line.words[0]);
    if (stage.wizards.started.isEmpty())
        stage.referee.fail(expected, QStringLiteral("none"));
    const int got = stage.wizards.started.take();
    if (got != wholeNumber(stage, line.words[0]))
        stage.referee.fail(expected, QString::number(got));
}

/// A program of the script's own: the text as its file, which can be run.
void executable(Stage &stage, const Line &line)
{
    const QString &path = line.words[0];
    QFile file(path);
    const QByteArray text = line.words[1].toUtf8().replace("\r\n", "\n") + '\n';
    constexpr auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.setPermissions(permissions))
        stage.referee.wrong(QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString()));
}

void waitForStatus(Stage &stage, const Line &line)
{
    const QRegularExpression pattern = wholePattern(stage, line.words[0]);
    const int limit = line.words.size() > 1 ? wholeNumber(stage, line.words[1]) : 5000;
    QString got;
    const bool came = comesTrue(
        [&] {
            const MainWindow *window = stage.isRunning() ? stage.program().context().mainWindow : nullptr;
            got = window ? window->statusText() : QString();
            return pattern.match(got).hasMatch();
        },
        limit);
    if (!came)
        stage.referee.fail(QStringLiteral("a status that matches %1 within %2 ms").arg(line.words[0]).arg(limit),
                           quoted(got));
}

constexpr Command commands[] = {
    {"serve", 2, -1, serve},
    {"serve-slowly", 2, 2, serveSlowly},
    {"serve-cut", 1, 2, serveWord<CutWord>},
    {"serve-full", 1, 2, serveWord<FullWord>},
    {"serve-no-more", 1, 1, serveNoMore},
    {"network", 1, 1, network},
    {"fail-transfer", 1, 1, failTransfer},
    {"wizard-server", 1, 1, wizardServer},
    {"wizard-result", 2, 2, wizardResult},
    {"expect-wizard", 1, 1, expectWizard},
    {"executable", 2, 2, executable},
    {"wait-for-status", 1, 2, waitForStatus},
};
} // namespace

std::span<const Command> outsideCommands()
{
    return commands;
}
} // namespace drive
