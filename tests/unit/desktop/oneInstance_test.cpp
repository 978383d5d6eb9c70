#include "desktop/oneInstance.h"

#include "unit/support/sandbox.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace
{
/// Hands a line over from elsewhere while this side answers.
bool handOverMeanwhile(const QString &place, const QString &line)
{
    std::atomic<bool> done = false;
    bool taken = false;
    std::thread other([&] {
        taken = OneInstance::handOver(place, line);
        done = true;
    });
    QElapsedTimer timer;
    timer.start();
    while (!done && timer.elapsed() < 20'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    other.join();
    return taken;
}

class OneInstanceTest : public Sandbox
{
};
} // namespace

TEST_F(OneInstanceTest, TakesTheLineOfAnotherStart)
{
    const QString place = path("state/instance");
    QStringList received;
    const OneInstance instance(place, [&](const QString &line) { received.append(line); });
    EXPECT_TRUE(handOverMeanwhile(place, QStringLiteral("/a b/ł.html")));
    EXPECT_TRUE(handOverMeanwhile(place, QString()));
    EXPECT_EQ(received, QStringList({QStringLiteral("/a b/ł.html"), QString()}));
}

TEST_F(OneInstanceTest, IsNotThereWithoutAProgram)
{
    const QString place = path("instance");
    EXPECT_FALSE(OneInstance::handOver(place, QStringLiteral("x")));
    {
        const OneInstance instance(place, [](const QString &) {});
        EXPECT_TRUE(QFile::exists(place));
    }
    EXPECT_FALSE(QFile::exists(place));
    EXPECT_FALSE(OneInstance::handOver(place, QStringLiteral("x")));
}

TEST_F(OneInstanceTest, TakesThePlaceOfOneThatWasKilled)
{
    const QString place = path("instance");
    QFile left(place);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    EXPECT_FALSE(OneInstance::handOver(place, QStringLiteral("x")));
    int count = 0;
    const OneInstance instance(place, [&](const QString &) { ++count; });
    EXPECT_TRUE(handOverMeanwhile(place, QStringLiteral("x")));
    EXPECT_EQ(count, 1);
}

TEST_F(OneInstanceTest, DoesWithoutWhereThePathIsTooLong)
{
    const QString place = QStringLiteral("/tmp/") + QString(200, u'x');
    const OneInstance instance(place, [](const QString &) {});
    EXPECT_FALSE(OneInstance::handOver(place, QStringLiteral("x")));
}
