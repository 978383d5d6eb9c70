#pragma once

#include "drive/answers.h"

#include <memory>
#include <vector>

class QProcess;

namespace drive
{
class World;

/// Further starts of the program while the first one runs, each in a process of its own in the same world.
class SecondStarts
{
public:
    explicit SecondStarts(const World &world);
    SecondStarts(const SecondStarts &) = delete;
    SecondStarts &operator=(const SecondStarts &) = delete;
    ~SecondStarts(); ///< ends those that still run

    /// Starts one and waits until it has ended, or stands there with its windows. What it has said by then is kept,
    /// with a last line "ended" or "running".
    void start(const QString &commandLine);

    Recorded<QString> told; ///< not yet looked at

private:
    const World &m_world;
    std::vector<std::unique_ptr<QProcess>> m_running;
};
} // namespace drive
