#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
struct Outcome {
    int status = -1;
    QString output; ///< standard output, then standard error
};

/// The driver as a program, with a folder of its own for what it leaves behind.
class Driver : public testing::Test
{
protected:
    QString script(const QString &name, const QString &text)
    {
        QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        return path;
    }

    Outcome play(const QStringList &words)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), worlds());
        QDir().mkpath(worlds());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(DRIVER), words);
        EXPECT_TRUE(process.waitForFinished(60000));
        return {process.exitCode(),
                QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError())};
    }

    QString worlds() const { return folder.filePath(QStringLiteral("worlds")); }
    QStringList leftBehind() const { return QDir(worlds()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    QTemporaryDir folder;
};
} // namespace

TEST_F(Driver, TakesTheWorldAwayWhateverTheScriptCameTo)
{
    const QString held = script(QStringLiteral("held.drive"), QStringLiteral("file %SITE%/a.txt a\nread-only %SITE%"));
    const QString failed = script(QStringLiteral("failed.drive"), QStringLiteral("expect-file %SITE%/a.txt a"));
    const QString wrong = script(QStringLiteral("wrong.drive"), QStringLiteral("nonsense"));
    EXPECT_EQ(play({held}).status, 0);
    EXPECT_EQ(play({failed}).status, 1);
    EXPECT_EQ(play({wrong}).status, 2);
    EXPECT_EQ(leftBehind(), QStringList());
}

TEST_F(Driver, KeepsTheWorldIfAskedToAndTellsWhereItIs)
{
    const QString path = script(QStringLiteral("a.drive"), QStringLiteral("file %SITE%/a.txt text\nexpect-running"));
    const Outcome outcome = play({path, QStringLiteral("--keep")});
    EXPECT_EQ(outcome.status, 1);
    const auto kept = QRegularExpression(QStringLiteral("kept in (.*)\n")).match(outcome.output);
    ASSERT_TRUE(kept.hasMatch()) << qPrintable(outcome.output);
    QFile file(kept.captured(1) + QStringLiteral("/site/a.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "text");
}

TEST_F(Driver, PlaysEachScriptInAWorldOfItsOwnAndEndsWithTheWorstStatus)
{
    const QString makes = script(QStringLiteral("makes.drive"), QStringLiteral("file %SITE%/a.txt a"));
    const QString misses = script(QStringLiteral("misses.drive"), QStringLiteral("expect-no-file %SITE%/a.txt"));
    const QString fails = script(QStringLiteral("fails.drive"), QStringLiteral("# one\nexpect-running"));
    EXPECT_EQ(play({makes, misses}).status, 0);
    const Outcome outcome = play({fails, makes});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.output.contains(fails + QStringLiteral(":2: expected the program running, got "
                                                               "one that was not started")))
        << qPrintable(outcome.output);
}

TEST_F(Driver, TellsAProcessThatEndsBeforeItsScript)
{
    const QString crashes = script(QStringLiteral("crashes.drive"), QStringLiteral("start\ntest-form frmTestDesk\n"
                                                                                   "click frmTestDesk.cmdCrash"));
    const Outcome crashed = play({crashes});
    EXPECT_EQ(crashed.status, 1);
    EXPECT_TRUE(crashed.output.contains(crashes + QStringLiteral(":3: expected the program to live until the script's "
                                                                 "end, got it ended by signal 6")))
        << qPrintable(crashed.output);
    const QString leaves = script(QStringLiteral("leaves.drive"), QStringLiteral("start\ntest-form frmTestDesk\n"
                                                                                 "click frmTestDesk.cmdLeave"));
    const Outcome left = play({leaves});
    EXPECT_EQ(left.status, 1);
    EXPECT_TRUE(left.output.contains(QStringLiteral("ended with status 0"))) << qPrintable(left.output);
    EXPECT_EQ(leftBehind(), QStringList());
}

TEST_F(Driver, RefusesToRunWithoutScripts)
{
    EXPECT_EQ(play({}).status, 2);
    EXPECT_EQ(play({QStringLiteral("--what")}).status, 2);
    EXPECT_EQ(play({folder.filePath(QStringLiteral("missing.drive"))}).status, 2);
}

TEST_F(Driver, SeedsTheProgramFolderAndHidesTheUsersOwnHome)
{
    const QString path = script(QStringLiteral("a.drive"), QStringLiteral("start\nprint frmMdi Caption\nexit"));
    const Outcome outcome = play({path, QStringLiteral("--keep")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.output);
    const auto kept = QRegularExpression(QStringLiteral("kept in (.*)\n")).match(outcome.output);
    ASSERT_TRUE(kept.hasMatch());
    const QStringList seeded =
        QDir(kept.captured(1) + QStringLiteral("/tagwrighter")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    const QStringList data = QDir(QStringLiteral(TAGWRIGHTER_DATA)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &name : data)
        EXPECT_TRUE(seeded.contains(name)) << qPrintable(name);
    EXPECT_TRUE(QFileInfo::exists(kept.captured(1) + QStringLiteral("/home/.config/tagwrighter")));
}
