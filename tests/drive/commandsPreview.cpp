// The processes of the page view, and their end.
#include "drive/commands.h"
#include "drive/stage.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace drive
{
namespace
{
QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

pid_t parentOf(pid_t process)
{
    const QByteArray status = contents(QStringLiteral("/proc/%1/stat").arg(process));
    return status.mid(status.lastIndexOf(')') + 2).split(' ').value(1).toInt(); // the state stands before it
}

bool isOurs(pid_t process)
{
    while (process > 1 && process != ::getpid())
        process = parentOf(process);
    return process == ::getpid();
}

/// The processes of pages and those that make them, which bear the same name: each page's is a copy of its maker.
QList<pid_t> engineProcesses()
{
    QList<pid_t> found;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &name : names) {
        const pid_t process = name.toInt();
        const QByteArray line = contents(QStringLiteral("/proc/%1/cmdline").arg(process));
        if ((line.contains("--type=zygote") || line.contains("--type=renderer")) && isOurs(process))
            found.append(process);
    }
    return found;
}

/// A page's process was made by another than the program, and makes none itself.
bool isOfPage(pid_t process, const QList<pid_t> &all)
{
    return parentOf(process) != ::getpid() &&
           std::none_of(all.begin(), all.end(), [process](pid_t other) { return parentOf(other) == process; });
}

void endPreview(Stage &stage, const Line &line)
{
    const bool andMaker = line.words[0] == u"maker";
    if (!andMaker && line.words[0] != u"page")
        stage.referee.wrong(QStringLiteral("%1 is neither page nor maker").arg(line.words[0]));
    const QList<pid_t> all = engineProcesses();
    QList<pid_t> ended;
    for (const pid_t process : all)
        if (andMaker || isOfPage(process, all))
            ended.append(process);
    if (ended.isEmpty())
        stage.referee.fail(QStringLiteral("a process of the preview"), QStringLiteral("none"));
    for (const pid_t process : ended)
        ::kill(process, SIGKILL);
}

constexpr Command commands[] = {
    {"end-preview", 1, 1, endPreview},
};
} // namespace

std::span<const Command> previewCommands()
{
    return commands;
}
} // namespace drive
