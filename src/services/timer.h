#pragma once

#include <QObject>
#include <functional>
#include <memory>

/// One running clockwork behind a Timer.
class Ticker
{
public:
    Ticker() = default;
    Ticker(const Ticker &) = delete;
    Ticker &operator=(const Ticker &) = delete;
    virtual ~Ticker() = default;

    virtual void start(int milliseconds) = 0; ///< ticks again and again from now on, until stopped
    virtual void stop() = 0;
};

/// Where tickers come from: the event loop, or a test in which none ever ticks by itself.
class TimerSource
{
public:
    TimerSource() = default;
    TimerSource(const TimerSource &) = delete;
    TimerSource &operator=(const TimerSource &) = delete;
    virtual ~TimerSource() = default;

    virtual std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) = 0;
};

/// A form's timer. While it is enabled and its interval is above 0, its handler runs once an interval; setting either
/// starts a new interval, to the value it has already too.
class Timer final : public QObject
{
public:
    /// The handler is the timer's `Timer` event. It may disable or destroy the timer.
    Timer(TimerSource &source, const QString &name, std::function<void()> handler, QObject *parent = nullptr);
    ~Timer() override;

    int Interval() const { return interval; }
    void setInterval(int milliseconds); ///< below 0 counts as 0, which never fires
    bool Enabled() const { return enabled; }
    void setEnabled(bool on);

    /// Runs the handler now, as the end of an interval does, enabled or not.
    void fire();

private:
    void restart();

    std::function<void()> handler;
    std::unique_ptr<Ticker> ticker;
    int interval = 0;
    bool enabled = false;
};
