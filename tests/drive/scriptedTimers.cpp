#include "drive/scriptedTimers.h"

namespace drive
{
class ScriptedTimers::RunningTicker final : public Ticker
{
public:
    RunningTicker(ScriptedTimers &source, std::function<void()> tick) : m_source(source), m_tick(std::move(tick)) {}
    RunningTicker(const RunningTicker &) = delete;
    RunningTicker &operator=(const RunningTicker &) = delete;
    ~RunningTicker() override { stop(); }

    void start(int milliseconds) override
    {
        stop();
        m_interval = milliseconds;
        m_due = m_source.m_now + milliseconds;
        m_source.m_running.append(this);
    }
    void stop() override { m_source.m_running.removeAll(this); }

    qint64 due() const { return m_due; }
    /// Begins the next interval; what the end of this one does.
    std::function<void()> take()
    {
        m_due += m_interval;
        return m_tick;
    }

private:
    ScriptedTimers &m_source;
    std::function<void()> m_tick;
    qint64 m_due = 0;
    int m_interval = 0;
};

std::unique_ptr<Ticker> ScriptedTimers::makeTicker(std::function<void()> tick)
{
    return std::make_unique<RunningTicker>(*this, std::move(tick));
}

ScriptedTimers::RunningTicker *ScriptedTimers::nextDue(qint64 until) const
{
    RunningTicker *next = nullptr;
    for (RunningTicker *ticker : m_running)
        if (ticker->due() <= until && (!next || ticker->due() < next->due()))
            next = ticker;
    return next;
}

void ScriptedTimers::pass(qint64 milliseconds, const Fire &done)
{
    const qint64 begin = m_now;
    const qint64 end = begin + milliseconds;
    while (RunningTicker *next = nextDue(end)) {
        m_now = next->due();
        done(m_now - begin, next->take());
    }
    m_now = end;
}
} // namespace drive
