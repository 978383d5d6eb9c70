#include "services/timer.h"

Timer::Timer(TimerSource &source, const QString &name, std::function<void()> handlerOfTimer, QObject *parent)
    : QObject(parent), handler(std::move(handlerOfTimer)), ticker(source.makeTicker([this] { fire(); }))
{
    setObjectName(name);
}

Timer::~Timer() = default;

void Timer::setInterval(int milliseconds)
{
    interval = qMax(milliseconds, 0);
    restart();
}

void Timer::setEnabled(bool on)
{
    enabled = on;
    restart();
}

void Timer::fire()
{
    // A copy, for the handler may destroy this timer and its own function object with it.
    const std::function<void()> run = handler;
    if (run)
        run();
}

void Timer::restart()
{
    if (enabled && interval > 0)
        ticker->start(interval);
    else
        ticker->stop();
}
