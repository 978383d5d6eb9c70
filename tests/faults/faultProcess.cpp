#include "faultProcess.h"

#include <QFile>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{
/// What the new process does; it never comes back.
[[noreturn]] void become(const FaultProcess &process, int output, int errors)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that is given up takes it along
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(errors >= 0 ? errors : nothing, STDERR_FILENO);
    if (process.prepare && !process.prepare())
        ::_exit(NotPrepared);
    for (const auto &[name, value] : process.variables)
        ::setenv(name.constData(), value.constData(), 1);
    std::vector<QByteArray> words{QFile::encodeName(process.program)};
    for (const QString &argument : process.arguments)
        words.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execvp(pointers[0], pointers.data());
    ::_exit(NotPrepared);
}
} // namespace

pid_t startToFirstLine(const FaultProcess &process)
{
    int channel[2] = {};
    if (::pipe2(channel, O_CLOEXEC) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child == 0)
        become(process, channel[1], -1);
    ::close(channel[1]);
    char got = 0;
    while (got != '\n' && ::read(channel[0], &got, 1) == 1) {
    }
    ::close(channel[0]);
    return got == '\n' ? child : -1;
}

QList<std::pair<QByteArray, QByteArray>> withFaults(const QByteArray &rules)
{
    return {{"LD_PRELOAD", SHIM},
            {"TAGWRIGHTER_FAULT", rules},
            {"ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0"}};
}

bool actAsNobody()
{
    constexpr uid_t nobody = 65534;
    return ::geteuid() == 0 && ::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
}

bool canActAsNobody()
{
    constexpr int Misused = 2; // what the saver tells without words
    return runToEnd({QStringLiteral(SAVER), {}, {}, actAsNobody}).status == Misused;
}

FaultOutcome runToEnd(const FaultProcess &process)
{
    int channel[2] = {};
    if (::pipe2(channel, O_CLOEXEC) != 0)
        return {};
    const pid_t child = ::fork();
    if (child == 0)
        become(process, channel[1], channel[1]);
    ::close(channel[1]);
    FaultOutcome outcome;
    std::array<char, 4096> buffer{};
    QByteArray output;
    for (ssize_t got = ::read(channel[0], buffer.data(), buffer.size()); got > 0;
         got = ::read(channel[0], buffer.data(), buffer.size()))
        output.append(buffer.data(), got);
    ::close(channel[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    outcome.output = QString::fromUtf8(output);
    return outcome;
}

bool unshareMounts()
{
    return ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountAt(const QString &what, const QString &where, const QByteArray &kind, const QByteArray &options)
{
    const QByteArray place = QFile::encodeName(where);
    if (kind == "bind")
        return ::mount(QFile::encodeName(what).constData(), place.constData(), nullptr, MS_BIND, nullptr) == 0;
    return ::mount(QFile::encodeName(what).constData(), place.constData(), kind.constData(), 0, options.constData()) ==
           0;
}

bool canMount()
{
    return runToEnd({QStringLiteral("/bin/true"),
                     {},
                     {},
                     [] {
                         return unshareMounts() &&
                                mountAt(QStringLiteral("tmpfs"), QStringLiteral("/tmp"), "tmpfs", "size=64k");
                     }})
               .status == 0;
}
