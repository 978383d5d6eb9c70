#include "browser/namespaces.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

// What runs in the child is plain system calls: of the program's threads it has only the one that made it.
namespace
{
constexpr unsigned long EngineNamespaces = CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;

bool writeFile(const char *path, const char *text)
{
    const int file = open(path, O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const auto length = static_cast<ssize_t>(std::strlen(text));
    const bool written = write(file, text, static_cast<size_t>(length)) == length;
    close(file);
    return written;
}

/// The child keeps its own user and group inside.
bool writeMap(const char *path, unsigned id)
{
    char line[64];
    std::snprintf(line, sizeof line, "%u %u 1\n", id, id);
    return writeFile(path, line);
}

/// What the engine does to sandbox itself: its identity, a network without the machine's, and a file system that holds
/// nothing.
bool sandboxesItself(unsigned user, unsigned group)
{
    return writeFile("/proc/self/setgroups", "deny") && writeMap("/proc/self/gid_map", group) &&
           writeMap("/proc/self/uid_map", user) && chroot("/proc/self/fdinfo/") == 0 && chdir("/") == 0 &&
           access("/etc", F_OK) != 0;
}
} // namespace

bool hasNamespaces()
{
    const unsigned user = geteuid();
    const unsigned group = getegid();
    // The raw call, as fork() takes no flags.
    const long child = syscall(SYS_clone, EngineNamespaces | SIGCHLD, nullptr, nullptr, nullptr, nullptr);
    if (child == 0)
        _exit(sandboxesItself(user, group) ? 0 : 1);
    if (child < 0)
        return false;
    int status = 0;
    return waitpid(static_cast<pid_t>(child), &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
