// Saves whose calls of the system fail, wait or never come back, and the order of those calls.
#include "savingPlace.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
class FailingCalls : public SavingPlace
{
protected:
    void SetUp() override { put("site/a.htm", old); }
    void giveSecondName() { ASSERT_EQ(::link(native("site/a.htm").constData(), native("site/b.htm").constData()), 0); }

    const QByteArray old = QByteArray(3'000'000, 'o');
};

TEST_F(FailingCalls, LeaveTheOldFileAndNothingElse)
{
    struct Row {
        const char *rules;
        int error;
    };
    const Row rows[] = {
        {"write:/site/:1:28", ENOSPC},
        {"write:/site/:1:122", EDQUOT},
        {"write:/site/:1:5", EIO},
        {"fsync:/site/:1:5", EIO},
        {"fsync:/site/:1:28", ENOSPC},
        {"close:/site/:1:122", EDQUOT},
        {"linkat:/site/:1:28", ENOSPC},
        {"rename:/site/a.htm:1:5", EIO},
        {"rename:/site/a.htm:1:116", ESTALE},
        {"tmpfile::1:95;write:/site/:1:28", ENOSPC},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(save(withFaults(row.rules)), row.error) << row.rules;
        EXPECT_EQ(get("site/a.htm"), old) << row.rules;
        EXPECT_EQ(names("site"), QStringList(QStringLiteral("a.htm"))) << row.rules;
        expectNothingNoted();
    }
}

TEST_F(FailingCalls, ThatWaitAreWaitedFor)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(save(withFaults("write:/site/:1:wait300;fsync:/site/:1:wait300;rename:/site/:1:wait300")), 0);
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_EQ(get("site/a.htm"), newPage());
    expectNothingNoted();
}

TEST_F(FailingCalls, InPlaceHaveTheOldBytesPutBack)
{
    giveSecondName();
    struct Row {
        const char *rules;
        int error;
    };
    const Row rows[] = {
        {"write:/saves/:2:28", ENOSPC},     // no room for the old bytes: nothing is touched
        {"rename:/saves/:1:5", EIO},        // they could not be kept: nothing is touched
        {"write:/site/a.htm:2:28", ENOSPC}, // the disk is full in the middle
        {"ftruncate:/site/a.htm:1:5", EIO}, {"fsync:/site/a.htm:1:5", EIO},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(save(withFaults(row.rules)), row.error) << row.rules;
        EXPECT_EQ(get("site/a.htm"), old) << row.rules;
        EXPECT_EQ(get("site/b.htm"), old) << row.rules;
        expectNothingNoted();
    }
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(get("site/b.htm"), newPage());
}

TEST_F(FailingCalls, InPlaceLeaveTheOldBytesToTheNextStart)
{
    giveSecondName();
    struct Row {
        const char *rules;
        int error;
        int putBack;
        bool isNew;
    };
    const Row rows[] = {
        {"write:/site/a.htm:2+:5", EIO, 1, false},     // neither the new bytes nor the old ones can be written
        {"write:/site/a.htm:3:kill", -1, 1, false},    // killed in the middle
        {"write:/site/a.htm:1:kill", -1, 0, false},    // killed before the first byte
        {"ftruncate:/site/a.htm:1:kill", -1, 0, true}, // killed when all of it stood there
    };
    for (const Row &row : rows) {
        put("site/a.htm", old);
        EXPECT_EQ(save(withFaults(row.rules)), row.error) << row.rules;
        EXPECT_EQ(names("state/recovery"), QStringList(QStringLiteral("saves"))) << row.rules;
        EXPECT_EQ(settle(), row.putBack) << row.rules;
        EXPECT_EQ(get("site/a.htm"), row.isNew ? newPage() : old) << row.rules;
        EXPECT_EQ(get("site/b.htm"), row.isNew ? newPage() : old) << row.rules;
        expectNothingNoted();
    }
}

TEST_F(FailingCalls, InPlaceAreSettledByTheNextSaveToo)
{
    giveSecondName();
    EXPECT_EQ(save(withFaults("write:/site/a.htm:2+:5")), EIO);
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(get("site/b.htm"), newPage());
    expectNothingNoted();
}

TEST_F(FailingCalls, InPlaceLeaveAloneWhatOthersHaveWrittenSince)
{
    giveSecondName();
    EXPECT_EQ(save(withFaults("write:/site/a.htm:2:kill")), -1);
    put("site/a.htm", QByteArray(4'000'000, 'x'));
    EXPECT_EQ(settle(), 0);
    EXPECT_EQ(get("site/a.htm"), QByteArray(4'000'000, 'x'));
    EXPECT_EQ(names("state/recovery"), QStringList(QStringLiteral("unreadable")));
    EXPECT_EQ(get("state/recovery/unreadable/1-a.htm"), old) << "the old bytes are kept all the same";
}

TEST_F(FailingCalls, OfARunningProgramAreLeftAlone)
{
    giveSecondName();
    const pid_t slow = startToFirstLine({QStringLiteral(SAVER),
                                         {state(), QStringLiteral("loop"), page(), QString::number(PageSize)},
                                         withFaults("fsync:/site/a.htm:1:wait2000")});
    ASSERT_GT(slow, 0);
    for (int wait = 0; wait < 100 && get("site/a.htm").size() != PageSize; ++wait)
        ::usleep(20'000);
    EXPECT_EQ(settle(), 0);
    EXPECT_EQ(names("state/recovery"), QStringList(QStringLiteral("saves")));
    ::kill(slow, SIGKILL);
    ::waitpid(slow, nullptr, 0);
    settle();
    expectNothingNoted();
}

/// The first line behind `from` in which the pattern is found; -1 for none, and behind none.
qsizetype lineBehind(qsizetype from, const QStringList &lines, const QString &pattern)
{
    const QRegularExpression expression(pattern);
    for (qsizetype line = from + 1; from >= -1 && line < lines.size(); ++line)
        if (lines[line].contains(expression))
            return line;
    return -2;
}

/// Whether a machine lets programs be traced is asked of another program: a save that fails is no reason to skip.
class TracedCalls : public FailingCalls
{
protected:
    void SetUp() override
    {
        FailingCalls::SetUp();
        const FaultOutcome trial = runToEnd({QStringLiteral("strace"), {QStringLiteral("true")}});
        if (trial.status != 0)
            GTEST_SKIP() << "no program can be traced here: " << trial.output.toStdString();
    }

    /// The calls of a save of the page, a line each.
    QStringList callsOfASave()
    {
        const FaultOutcome outcome =
            runToEnd({QStringLiteral("strace"),
                      {QStringLiteral("-f"), QStringLiteral("-y"), QStringLiteral("-o"), path("calls"),
                       // who looks for leaks traces, too, and there can be one only
                       QStringLiteral("-E"), QStringLiteral("ASAN_OPTIONS=detect_leaks=0"), QStringLiteral(SAVER),
                       state(), QStringLiteral("save"), page(), QStringLiteral("5000000"), QStringLiteral("n")}});
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
        return QString::fromUtf8(get("calls")).split(u'\n');
    }
};

TEST_F(TracedCalls, ComeInAnOrderThatLosesNothing)
{
    const QStringList lines = callsOfASave();
    const QString site = QRegularExpression::escape(path("site"));
    const qsizetype opened = lineBehind(-1, lines, QStringLiteral("open.*%1.*O_TMPFILE").arg(site));
    const qsizetype written = lineBehind(opened, lines, QStringLiteral("write\\(\\d+<%1/[^>]*>.*= 5000000").arg(site));
    const qsizetype flushed = lineBehind(written, lines, QStringLiteral("fsync\\(\\d+<%1/[^>]*>.*= 0").arg(site));
    const qsizetype renamed = lineBehind(flushed, lines, QStringLiteral("rename.*\"%1/a\\.htm\".*= 0").arg(site));
    const qsizetype flushedNames = lineBehind(renamed, lines, QStringLiteral("fsync\\(\\d+<%1>.*= 0").arg(site));
    EXPECT_GE(opened, 0);
    EXPECT_GT(written, opened);
    EXPECT_GT(flushed, written);
    EXPECT_GT(renamed, flushed);
    EXPECT_GT(flushedNames, renamed);
    EXPECT_EQ(lineBehind(flushed, lines, QStringLiteral("write\\(\\d+<%1").arg(site)), -2) << "nothing after the flush";
}

TEST_F(TracedCalls, InPlaceComeBehindThoseThatKeepTheOldBytes)
{
    giveSecondName();
    const QStringList lines = callsOfASave();
    const QString saves = QRegularExpression::escape(path("state/recovery/saves"));
    const QString target = QRegularExpression::escape(page());
    const qsizetype kept = lineBehind(-1, lines, QStringLiteral("fsync\\(\\d+<%1/.*= 0").arg(saves));
    const qsizetype named = lineBehind(kept, lines, QStringLiteral("rename.*\"%1/.*\\.old\".*= 0").arg(saves));
    const qsizetype noted = lineBehind(named, lines, QStringLiteral("fsync\\(\\d+<%1>.*= 0").arg(saves));
    const qsizetype written = lineBehind(-1, lines, QStringLiteral("write\\(\\d+<%1>").arg(target));
    const qsizetype flushed = lineBehind(written, lines, QStringLiteral("fsync\\(\\d+<%1>.*= 0").arg(target));
    const qsizetype struckOut = lineBehind(-1, lines, QStringLiteral("unlink.*\"%1/.*\\.old\"").arg(saves));
    EXPECT_GE(kept, 0);
    EXPECT_GT(named, kept);
    EXPECT_GT(noted, named);
    EXPECT_GT(written, noted);
    EXPECT_GT(flushed, written);
    EXPECT_GT(struckOut, flushed);
}
} // namespace
