#include "services/timer.h"

#include "desktop/qtTimerSource.h"

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
// Tickers that only note what they are told.
class NotedTickers final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override
    {
        run = std::move(tick);
        return std::make_unique<Noted>(notes);
    }

    QStringList notes;
    std::function<void()> run;

private:
    class Noted final : public Ticker
    {
    public:
        explicit Noted(QStringList &list) : noted(list) {}
        void start(int milliseconds) override { noted += QString::number(milliseconds); }
        void stop() override { noted += QStringLiteral("stop"); }

    private:
        QStringList &noted;
    };
};

TEST(Timer, RunsOnlyWhileItIsEnabledWithAnInterval)
{
    NotedTickers tickers;
    Timer timer(tickers, QStringLiteral("tmrRefresh"), [] {});
    EXPECT_EQ(timer.objectName(), QStringLiteral("tmrRefresh"));
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(timer.Interval(), 0);
    timer.setEnabled(true);
    timer.setInterval(3000);
    timer.setInterval(3000); // starts a new interval
    timer.setEnabled(true);  // and so does this
    timer.setInterval(0);
    timer.setInterval(-5);
    timer.setInterval(1);
    timer.setEnabled(false);
    timer.setInterval(7);
    const QStringList expected = {QStringLiteral("stop"), QStringLiteral("3000"), QStringLiteral("3000"),
                                  QStringLiteral("3000"), QStringLiteral("stop"), QStringLiteral("stop"),
                                  QStringLiteral("1"),    QStringLiteral("stop"), QStringLiteral("stop")};
    EXPECT_EQ(tickers.notes, expected);
    EXPECT_EQ(timer.Interval(), 7);
}

TEST(Timer, RunsItsHandlerWhenItTicksAndWhenItIsFired)
{
    NotedTickers tickers;
    int runs = 0;
    Timer timer(tickers, QStringLiteral("t"), [&] { ++runs; });
    tickers.run();
    timer.fire();
    EXPECT_EQ(runs, 2);
    Timer idle(tickers, QStringLiteral("t"), {});
    idle.fire();
}

TEST(Timer, MayBeDestroyedByItsHandler)
{
    QtTimerSource source;
    std::unique_ptr<Timer> timer;
    int runs = 0;
    const auto make = [&] {
        timer = std::make_unique<Timer>(source, QStringLiteral("t"), [&runs, &timer] {
            timer.reset();
            ++runs; // what the handler holds is still there
        });
    };
    make();
    timer->fire();
    EXPECT_EQ(runs, 1);
    make();
    timer->setInterval(1);
    timer->setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs == 2; }, 5000));
    QTest::qWait(20);
    EXPECT_EQ(runs, 2);
}

TEST(QtTimerSource, TicksAgainAndAgainInTheEventLoop)
{
    QtTimerSource source;
    int runs = 0;
    Timer timer(source, QStringLiteral("t"), [&] { ++runs; });
    timer.setInterval(1);
    QTest::qWait(20);
    EXPECT_EQ(runs, 0);
    timer.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs >= 3; }, 5000));
    timer.setEnabled(false);
    const int before = runs;
    QTest::qWait(20);
    EXPECT_EQ(runs, before);
}
} // namespace
