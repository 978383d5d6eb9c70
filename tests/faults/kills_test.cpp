// Saves that are killed at random moments.
#include "savingPlace.h"
#include "storage/saveNotes.h"

#include <csignal>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr int Kills = 200;
constexpr unsigned LongestMicroseconds = 100'000; ///< several saves of that size

class KilledSaves : public SavingPlace
{
protected:
    void SetUp() override
    {
        const QByteArray given = qgetenv("TAGWRIGHTER_SEED");
        const unsigned seed = given.isEmpty() ? std::random_device()() : given.toUInt();
        std::cout << "seed " << seed << " (TAGWRIGHTER_SEED repeats it)\n";
        random.seed(seed);
        put("site/a.htm", QByteArray(PageSize, 'a'));
    }

    /// One life of a program that saves without end.
    void killOne(const QList<std::pair<QByteArray, QByteArray>> &variables)
    {
        const pid_t child = startToFirstLine(
            {QStringLiteral(SAVER), {state(), QStringLiteral("loop"), page(), QString::number(PageSize)}, variables});
        ASSERT_GT(child, 0);
        ::usleep(static_cast<useconds_t>(random() % LongestMicroseconds));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    bool isWhole() const
    {
        const QByteArray found = get("site/a.htm");
        return found == QByteArray(PageSize, 'a') || found == QByteArray(PageSize, 'b');
    }

    /// Two hundred kills; `alwaysWhole` asks for a whole file even before the next start.
    void killAll(const QList<std::pair<QByteArray, QByteArray>> &variables, const QStringList &files, bool alwaysWhole)
    {
        int strays = 0;
        int torn = 0;
        for (int kill = 0; kill < Kills; ++kill) {
            killOne(variables);
            strays += names("site") == files ? 0 : 1;
            const bool whole = isWhole();
            torn += whole ? 0 : 1;
            ASSERT_TRUE(whole || !alwaysWhole) << kill;
            SaveNotes(state()).settle(); // what the next start does
            ASSERT_TRUE(isWhole()) << kill;
            ASSERT_EQ(names("site"), files) << kill;
            ASSERT_EQ(names("state/recovery"), QStringList()) << kill;
        }
        std::cout << Kills << " kills: " << torn << " torn files put back, " << strays << " stray files taken away\n";
    }

    std::mt19937 random;
};

TEST_F(KilledSaves, LeaveTheOldFileOrTheNewOne)
{
    killAll({}, {QStringLiteral("a.htm")}, true);
}

TEST_F(KilledSaves, LeaveNoStrayFileWhereEachFileHasAName)
{
    killAll(withFaults("tmpfile::1+:95"), {QStringLiteral("a.htm")}, true);
}

TEST_F(KilledSaves, InPlaceArePutRightByTheNextStart)
{
    ASSERT_EQ(::link(native("site/a.htm").constData(), native("site/b.htm").constData()), 0);
    killAll({}, {QStringLiteral("a.htm"), QStringLiteral("b.htm")}, false);
    EXPECT_EQ(get("site/a.htm"), get("site/b.htm"));
}
} // namespace
