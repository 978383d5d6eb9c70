// Stands before the system's own calls by which a file is saved, and lets some of them fail, wait or never come back,
// as bad disks and far ones do. It is loaded by LD_PRELOAD and told by the variable TAGWRIGHTER_FAULT what to do: rules
// parted by ";", each of them CALL:PLACE:NUMBER:ACTION. CALL is the name of a call, PLACE a part of the path of the
// file it is about, NUMBER which of those calls (from 1; 0: each), and ACTION an errno to fail with, "wait" and
// milliseconds, or "kill". The call "tmpfile" is an open of a file without a name.
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace
{
struct Rule {
    std::string call;
    std::string place;
    int number = 0;
    bool onwards = false;
    std::string action;
    int seen = 0;
};

std::vector<std::string> parts(const std::string &text, char parting)
{
    std::vector<std::string> all{{}};
    for (const char c : text)
        if (c == parting)
            all.emplace_back();
        else
            all.back() += c;
    return all;
}

std::vector<Rule> &rules()
{
    static std::vector<Rule> all = [] {
        std::vector<Rule> read;
        const char *const told = std::getenv("TAGWRIGHTER_FAULT");
        for (const std::string &text : parts(told ? told : "", ';'))
            if (const auto words = parts(text, ':'); words.size() == 4)
                read.push_back({words[0], words[1], std::atoi(words[2].c_str()), words[2].back() == '+', words[3], 0});
        return read;
    }();
    return all;
}

std::string pathOf(int descriptor)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "/proc/self/fd/%d", descriptor);
    std::array<char, 4096> path{};
    const ssize_t length = ::readlink(name.data(), path.data(), path.size());
    return {path.data(), static_cast<size_t>(length > 0 ? length : 0)};
}

/// Does what a rule says of this call. True where the call has to fail, with errno set.
bool fails(std::string_view call, const std::string &path)
{
    for (Rule &rule : rules()) {
        if (rule.call != call || path.find(rule.place) == std::string::npos)
            continue;
        ++rule.seen;
        if (rule.onwards ? rule.seen < rule.number : rule.seen != rule.number)
            continue;
        if (rule.action == "kill")
            ::raise(SIGKILL);
        if (rule.action.rfind("wait", 0) == 0) {
            ::usleep(static_cast<useconds_t>(std::atoi(rule.action.c_str() + 4)) * 1000U);
            continue;
        }
        errno = std::atoi(rule.action.c_str());
        return true;
    }
    return false;
}

bool failsOf(std::string_view call, int descriptor)
{
    if (rules().empty())
        return false;
    const int before = errno;
    const std::string path = pathOf(descriptor);
    errno = before;
    return fails(call, path);
}

template <class Function>
Function *systemOwn(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

int openOwn(const char *name, const char *path, int flags, mode_t mode)
{
    if ((flags & O_TMPFILE) == O_TMPFILE && fails("tmpfile", path))
        return -1;
    return systemOwn<int(const char *, int, ...)>(name)(path, flags, mode);
}
} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved ones
extern "C" {
int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openOwn("open", path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openOwn("open64", path, flags, mode);
}

ssize_t write(int descriptor, const void *bytes, size_t count)
{
    static auto *const own = systemOwn<ssize_t(int, const void *, size_t)>("write");
    return failsOf("write", descriptor) ? -1 : own(descriptor, bytes, count);
}

int fsync(int descriptor)
{
    static auto *const own = systemOwn<int(int)>("fsync");
    return failsOf("fsync", descriptor) ? -1 : own(descriptor);
}

int close(int descriptor)
{
    static auto *const own = systemOwn<int(int)>("close");
    const bool failing = failsOf("close", descriptor);
    const int error = errno;
    const int result = own(descriptor);
    errno = failing ? error : errno;
    return failing ? -1 : result;
}

int rename(const char *from, const char *to)
{
    static auto *const own = systemOwn<int(const char *, const char *)>("rename");
    return fails("rename", to) ? -1 : own(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    static auto *const own = systemOwn<int(int, const char *, int, const char *, int)>("linkat");
    return fails("linkat", to) ? -1 : own(fromFolder, from, toFolder, to, flags);
}

int ftruncate(int descriptor, off_t length)
{
    static auto *const own = systemOwn<int(int, off_t)>("ftruncate");
    return failsOf("ftruncate", descriptor) ? -1 : own(descriptor, length);
}

int ftruncate64(int descriptor, off64_t length)
{
    static auto *const own = systemOwn<int(int, off64_t)>("ftruncate64");
    return failsOf("ftruncate", descriptor) ? -1 : own(descriptor, length);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
