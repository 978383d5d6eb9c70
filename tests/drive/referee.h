#pragma once

#include <QString>
#include <atomic>

namespace drive
{
constexpr int StatusHeld = 0;        ///< every expectation held
constexpr int StatusFailed = 1;      ///< one did not
constexpr int StatusScriptWrong = 2; ///< the script itself is wrong

/// How far a script has come, in memory that the process which waits for it can read, however it ended.
struct Progress {
    std::atomic<int> line = 0;
    std::atomic<bool> finished = false; ///< the script was played to its end, or its failure has been told
    std::atomic<bool> killed = false;   ///< the process has ended itself at a `kill`, and another one is to go on
};

/// Thrown in place of the end where a line that cannot be done is passed over.
struct PassedOver {
};

/// Tells the first thing that does not hold, and ends the process with it: from within a handler of the program there
/// is no other way out that would not run more of the program.
class Referee
{
public:
    Referee(const QString &file, Progress &progress) : m_file(file), m_progress(progress) {}

    void enterLine(int line) { m_progress.line = line; }
    int line() const { return m_progress.line; }
    const QString &file() const { return m_file; }
    /// While it is true, what does not hold is passed over by an exception: for a command that looks whether it can be
    /// done before it does anything.
    bool passesOver = false;
    void tellKilled() const { m_progress.killed = true; }

    [[noreturn]] void fail(const QString &expected, const QString &got) const { failAt(line(), expected, got); }
    [[noreturn]] void failAt(int line, const QString &expected, const QString &got) const;
    /// The script asks for something that there is not.
    [[noreturn]] void wrong(const QString &reason) const { wrongAt(line(), reason); }
    [[noreturn]] void wrongAt(int line, const QString &reason) const;

private:
    [[noreturn]] void end(int line, const QString &message, int status) const;

    QString m_file;
    Progress &m_progress;
};
} // namespace drive
