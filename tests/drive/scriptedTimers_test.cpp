#include "drive/scriptedTimers.h"

#include <QStringList>
#include <gmock/gmock.h>

using drive::ScriptedTimers;
using testing::ElementsAre;

namespace
{
class ScriptedTimersTest : public testing::Test
{
protected:
    std::unique_ptr<Timer> timer(const QString &name, int interval)
    {
        auto made = std::make_unique<Timer>(timers, name, [this, name] { fired.append(name); });
        made->setInterval(interval);
        made->setEnabled(true);
        return made;
    }
    QStringList pass(qint64 milliseconds)
    {
        fired.clear();
        timers.pass(milliseconds, [this](qint64 passed, const std::function<void()> &fire) {
            moments.append(passed);
            fire();
        });
        return fired;
    }

    ScriptedTimers timers;
    QStringList fired;
    QList<qint64> moments;
};
} // namespace

TEST_F(ScriptedTimersTest, FireInTheOrderOfTime)
{
    const auto slow = timer(QStringLiteral("slow"), 100);
    const auto fast = timer(QStringLiteral("fast"), 40);
    EXPECT_THAT(pass(39), ElementsAre());
    EXPECT_THAT(pass(1), ElementsAre("fast"));
    EXPECT_THAT(pass(80), ElementsAre("fast", "slow", "fast"));
    EXPECT_THAT(moments, ElementsAre(1, 40, 60, 80));
}

TEST_F(ScriptedTimersTest, OfOneMomentTheFirstStartedFiresFirst)
{
    const auto one = timer(QStringLiteral("one"), 50);
    const auto two = timer(QStringLiteral("two"), 50);
    EXPECT_THAT(pass(50), ElementsAre("one", "two"));
    one->setEnabled(true); // begins a new interval behind the other's
    EXPECT_THAT(pass(50), ElementsAre("two", "one"));
}

TEST_F(ScriptedTimersTest, LeaveOutWhatIsSwitchedOffOrGone)
{
    const auto off = timer(QStringLiteral("off"), 10);
    auto gone = timer(QStringLiteral("gone"), 10);
    off->setEnabled(false);
    gone.reset();
    EXPECT_THAT(pass(100), ElementsAre());
}

TEST_F(ScriptedTimersTest, MayBeChangedByWhatFires)
{
    std::unique_ptr<Timer> second;
    Timer first(timers, QStringLiteral("first"), [&] {
        fired.append(QStringLiteral("first"));
        first.setEnabled(false);
        second = timer(QStringLiteral("second"), 10);
    });
    first.setInterval(20);
    first.setEnabled(true);
    EXPECT_THAT(pass(45), ElementsAre("first", "second", "second"));
}
