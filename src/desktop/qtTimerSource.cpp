#include "desktop/qtTimerSource.h"

#include <QTimer>

namespace
{
class QtTicker final : public Ticker
{
public:
    explicit QtTicker(std::function<void()> tick) : timer(new QTimer)
    {
        QObject::connect(timer, &QTimer::timeout, timer, std::move(tick));
    }

    // A ticker often goes while it ticks, when a handler unloads the form of its timer.
    ~QtTicker() override
    {
        timer->stop();
        timer->disconnect();
        timer->deleteLater();
    }

    void start(int milliseconds) override
    {
        // Short waits are to be exact; a minute may come with others that are due, which saves waking the machine.
        timer->setTimerType(milliseconds < 1000 ? Qt::PreciseTimer : Qt::CoarseTimer);
        timer->start(milliseconds);
    }

    void stop() override { timer->stop(); }

private:
    QTimer *timer;
};
} // namespace

std::unique_ptr<Ticker> QtTimerSource::makeTicker(std::function<void()> tick)
{
    return std::make_unique<QtTicker>(std::move(tick));
}
