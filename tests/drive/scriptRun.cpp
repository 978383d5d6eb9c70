#include "drive/scriptRun.h"

#include "drive/carriedOver.h"
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/palettes.h"
#include "drive/referee.h"
#include "drive/stage.h"
#include "widgets/programIcon.h"
#include "widgets/readableStyle.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace drive
{
namespace
{
/// The same looks on every machine.
void setLooks()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    useReadableStyle();
    QApplication::setWindowIcon(applicationIcon());
    const QString looks = qEnvironmentVariable("TAGWRIGHTER_DRIVE_LOOKS");
    if (looks == u"dark")
        QApplication::setPalette(darkPalette());
    else if (looks == u"contrast")
        QApplication::setPalette(highContrastPalette());
    for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                              Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        QApplication::setEffectEnabled(effect, false);
    QApplication::setCursorFlashTime(0);
}

/// The platform without a screen tells at every turn what it lacks; everything else is worth reading.
void tellMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

Script readScript(const QString &file, const Referee &referee)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        referee.wrongAt(0, QStringLiteral("the script cannot be read: %1").arg(source.errorString()));
    Script script = parseScript(QString::fromUtf8(source.readAll()));
    if (!script.error)
        script.error = checkCommands(script.lines);
    if (script.error)
        referee.wrongAt(script.error->line, script.error->reason);
    return script;
}

/// The toolkit as the program sets it up, with the looks of a script.
class Toolkit
{
public:
    Toolkit() : m_application(m_count, m_arguments)
    {
        QApplication::setApplicationName(QStringLiteral("tagwrighter"));
        QApplication::setApplicationDisplayName(QString());
        QApplication::setQuitOnLastWindowClosed(false);
        setLooks();
        new ActivationOrder(m_application);
    }

private:
    int m_count = 1;
    QByteArray m_name{"tagwrighter"};
    char *m_arguments[2] = {m_name.data(), nullptr};
    QApplication m_application;
};

void prepareProcess(const World &world)
{
    world.setEnvironment();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    qInstallMessageHandler(tellMessage);
}

/// What the new process does.
int playScript(const QString &file, const World &world, const RunOptions &options, Progress &progress)
{
    Referee referee(file, progress);
    const Script script = readScript(file, referee);
    const auto carried = takeStored(world.carriedOverFile());
    prepareProcess(world);
    if (!carried)
        world.seedProgramFolder(options.installedData);
    const Toolkit toolkit;
    {
        Stage stage(referee, world);
        insideEvent([&] { carried ? stage.goOn(script.lines, *carried) : stage.playScript(script.lines); });
        stage.checkNothingIsLeft();
    }
    progress.finished = true;
    return StatusHeld;
}

void tellUser(const QString &text)
{
    std::fprintf(stdout, "%s\n", text.toUtf8().constData());
    std::fflush(stdout);
}

/// Memory that the new process shares with this one.
Progress *sharedProgress()
{
    void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : new (memory) Progress;
}

int waitFor(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

/// The status of the process, as the system tells it.
int playInProcess(const QString &file, const World &world, const RunOptions &options, Progress &progress)
{
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // a script whose test was given up must not play on
        std::exit(playScript(file, world, options, progress));
    }
    return process > 0 ? waitFor(process) : -1;
}

void tellUnfinished(const QString &file, const Progress &progress, int status)
{
    const QByteArray how = WIFSIGNALED(status)
                               ? QByteArray("ended by signal ") + QByteArray::number(WTERMSIG(status)) + " (" +
                                     strsignal(WTERMSIG(status)) + ")"
                               : QByteArray("ended with status ") + QByteArray::number(WEXITSTATUS(status));
    std::fprintf(stderr, "%s:%d: expected the program to live until the script's end, got it %s\n",
                 file.toUtf8().constData(), progress.line.load(), how.constData());
}

/// The status of a script whose process has ended; 0 only if all of it was played.
int judge(const QString &file, const Progress &progress, int status)
{
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : StatusFailed;
    if (progress.finished && (code == StatusHeld || code == StatusFailed || code == StatusScriptWrong))
        return code;
    tellUnfinished(file, progress, status);
    return StatusFailed;
}
} // namespace

int playSecondStart(const QString &root, const QString &commandLine)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Progress progress;
    Referee referee(QStringLiteral("second start"), progress);
    const World world = World::at(root);
    prepareProcess(world);
    const Toolkit toolkit;
    Stage stage(referee, world);
    stage.desktop.boxes.tellOnly = tellUser;
    insideEvent([&] { stage.launch(commandLine); });
    settle();
    constexpr qint64 PastTheSplash = 1000; // milliseconds
    if (stage.isRunning())
        stage.desktop.timers.pass(PastTheSplash, [](qint64, const std::function<void()> &fire) { insideEvent(fire); });
    settle();
    if (!stage.isRunning())
        return 0;
    std::fputs(SecondStartStands, stdout);
    std::fflush(stdout);
    return QApplication::exec();
}

int runScript(const QString &file, const RunOptions &options)
{
    const auto world = World::make();
    Progress *progress = sharedProgress();
    if (!world || !progress) {
        std::fprintf(stderr, "%s: there is no room for the script's files\n", file.toUtf8().constData());
        return StatusFailed;
    }
    int status = playInProcess(file, *world, options, *progress);
    while (progress->killed.exchange(false))
        status = playInProcess(file, *world, options, *progress);
    const int result = judge(file, *progress, status);
    if (options.keepWorld)
        std::printf("%s: its world is kept in %s\n", file.toUtf8().constData(), world->root().toUtf8().constData());
    else
        world->remove();
    munmap(progress, sizeof(Progress));
    return result;
}
} // namespace drive
