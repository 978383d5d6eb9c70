#pragma once

#include "services/timer.h"

#include <QList>
#include <functional>

namespace drive
{
/// Timers that fire as a script lets time pass, and never by themselves.
class ScriptedTimers final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override;

    /// What is to be done with each end of an interval: `fire` runs the timer's handler, which may stop, start or
    /// destroy any timer. `milliseconds` have passed since pass() began.
    using Fire = std::function<void(qint64 milliseconds, const std::function<void()> &fire)>;
    /// Lets time pass. Every running timer whose interval ends meanwhile fires, once an interval, in the order of time;
    /// of several that end at the same moment, the one that was started first.
    void pass(qint64 milliseconds, const Fire &done);

private:
    class RunningTicker;
    RunningTicker *nextDue(qint64 until) const;

    QList<RunningTicker *> m_running; ///< in the order of their starts
    qint64 m_now = 0;                 ///< milliseconds
};
} // namespace drive
