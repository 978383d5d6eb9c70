#include "unit/support/fakes.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <iostream>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Saves under conditions that are made for real: a kill in the middle of one, and each refusal that the machine lets a
// test provoke. What could harm the test program itself runs in a child.

namespace
{
const QString page = QStringLiteral("page.html");

class WholeSaves : public FilesTest
{
protected:
    /// Runs in a child and gives the title of the first box that it shows; nothing else of the child is kept.
    template <class Action>
    QString titleInChild(Action action)
    {
        int channel[2] = {};
        EXPECT_EQ(::pipe(channel), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            action();
            const QByteArray title = boxes.shown.isEmpty() ? "(no box)" : boxes.shown.first().title.toUtf8();
            const ssize_t written = ::write(channel[1], title.constData(), static_cast<std::size_t>(title.size()));
            ::_exit(written == title.size() ? 0 : 1);
        }
        ::close(channel[1]);
        QByteArray title(200, '\0');
        const ssize_t length = ::read(channel[0], title.data(), static_cast<std::size_t>(title.size()));
        ::close(channel[0]);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        return QString::fromUtf8(title.first(qMax<ssize_t>(length, 0)));
    }
    static void becomeNobody()
    {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            ::_exit(2);
    }
    void allowAll(const QString &name, mode_t mode) { ASSERT_EQ(::chmod(path(name).toUtf8().constData(), mode), 0); }
    /// What stands in the test's folder besides the page.
    QStringList leftovers() const
    {
        QStringList names = QDir(QFileInfo(path(page)).path()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(page);
        return names;
    }
};

/// How long one save takes, in microseconds.
template <class Save>
unsigned microsecondsOf(Save save)
{
    QElapsedTimer timer;
    timer.start();
    save();
    return static_cast<unsigned>(timer.nsecsElapsed() / 1000);
}

TEST_F(WholeSaves, SurviveAKillAtAnyMoment)
{
    const QByteArray oldBytes(5'000'000, 'o');
    const QByteArray newBytes(5'000'000, 'n');
    FakeDocument &document = openedDocument(page, oldBytes);
    document.surface.setText(QString::fromLatin1(newBytes));
    const unsigned duration = microsecondsOf([&] { ASSERT_TRUE(files.SaveDocument(false)); });
    std::mt19937 random(20260301);
    int oldFound = 0;
    int newFound = 0;
    for (int kill = 0; kill < 200; ++kill) {
        writeFile(page, oldBytes);
        document.fileStamp = disk.stamp(path(page));
        const pid_t child = ::fork();
        if (child == 0) {
            files.SaveDocument(false);
            ::_exit(0);
        }
        ::usleep(static_cast<useconds_t>(random() % (duration + duration / 2)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const QByteArray found = bytesOf(page);
        oldFound += found == oldBytes ? 1 : 0;
        newFound += found == newBytes + "\r\n" ? 1 : 0;
        ASSERT_EQ(oldFound + newFound, kill + 1) << "neither the old nor the new file: " << found.size() << " bytes";
    }
    std::cout << "one save " << duration / 1000 << " ms; old file " << oldFound << ", new file " << newFound
              << " times\n";
    EXPECT_GT(oldFound, 0); // else the kills came too late to tell anything
    EXPECT_GT(newFound, 0);
}

TEST_F(WholeSaves, LeaveTheOldFileOnAFullDisk)
{
    openedDocument(page, "old").surface.setText(QString(200'000, u'n'));
    const QString title = titleInChild([this] {
        const rlimit limit{100'000, 100'000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        files.SaveDocument(false);
    });
    EXPECT_EQ(title, QStringLiteral("Disk Is Full!"));
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(WholeSaves, AreRefusedForAProtectedFile)
{
    openedDocument(page, "old");
    allowAll({}, 0777);
    allowAll(page, 0444);
    const QString title = titleInChild([this] {
        becomeNobody();
        files.SaveDocument(false);
    });
    EXPECT_EQ(title, QStringLiteral("Can Not Write to File"));
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
}

TEST_F(WholeSaves, AreRefusedInAFolderWithoutPermission)
{
    newDocument();
    allowAll({}, 0555);
    dialogs.choices.append({path(page), 2});
    const QString title = titleInChild([this] {
        becomeNobody();
        files.SaveDocument(false);
    });
    EXPECT_EQ(title, QStringLiteral("Can Not Write to File"));
    allowAll({}, 0700);
    EXPECT_EQ(bytesOf(page), QByteArray("(no file)"));
}

TEST_F(WholeSaves, OfAFileThatMayNotBeReadAreNeverReached)
{
    writeFile(page, "secret");
    allowAll({}, 0755);
    allowAll(page, 0000);
    EXPECT_EQ(titleInChild([this] {
                  becomeNobody();
                  files.OpenDocumentFile(path(page), false);
              }),
              QStringLiteral("Path/File Access Error"));
}

TEST_F(WholeSaves, AreRefusedInPlaceOfAFolder)
{
    newDocument();
    ASSERT_TRUE(QDir().mkdir(path(page)));
    dialogs.choices.append({path(page), 2});
    EXPECT_FALSE(files.SaveDocument(false));
    EXPECT_EQ(takeBox().title, QStringLiteral("Path/File Access Error"));
    EXPECT_TRUE(QFileInfo(path(page)).isDir());
}

TEST_F(WholeSaves, AreRefusedUnderTooLongAName)
{
    newDocument();
    dialogs.choices.append({path(QString(300, u'n')), 2});
    EXPECT_FALSE(files.SaveDocument(false));
    EXPECT_EQ(takeBox().title, QStringLiteral("Illegal File Name"));
}

TEST_F(WholeSaves, AndReadsTellOfTooManyOpenFiles)
{
    writeFile(page, "x");
    EXPECT_EQ(titleInChild([this] {
                  const int lowest = ::dup(0); // the next number that an open would get
                  const rlimit limit{static_cast<rlim_t>(lowest), static_cast<rlim_t>(lowest)};
                  ::close(lowest);
                  ::setrlimit(RLIMIT_NOFILE, &limit);
                  files.OpenDocumentFile(path(page), false);
              }),
              QStringLiteral("Too Many Files Open"));
}

TEST_F(WholeSaves, KeepPermissionsAndFollowALink)
{
    const QString linked = QStringLiteral("link.html");
    writeFile(page, "old");
    allowAll(page, 0640);
    ASSERT_TRUE(QFile::link(path(page), path(linked)));
    files.OpenDocumentFile(path(linked), false);
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("old\r\n"));
    EXPECT_TRUE(QFileInfo(path(linked)).isSymLink());
    struct stat status = {};
    ASSERT_EQ(::stat(path(page).toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}
} // namespace
