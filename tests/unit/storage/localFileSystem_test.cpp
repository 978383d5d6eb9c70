#include "storage/localFileSystem.h"

#include "unit/support/sandbox.h"

#include <QFile>

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
class LocalFiles : public Sandbox
{
protected:
    mode_t modeOf(const char *name) const { return statusOf(name).st_mode & 07777U; }

    struct stat statusOf(const char *name) const
    {
        struct stat status = {};
        EXPECT_EQ(::stat(native(name).constData(), &status), 0) << name;
        return status;
    }

    QByteArray native(const char *name) const { return QFile::encodeName(path(name)); }

    int writeCode(const QString &name, const QByteArray &bytes = "new")
    {
        const std::optional<FileError> error = files.writeWhole(name, bytes);
        return error ? error->code : 0;
    }

    int readCode(const QString &name)
    {
        const std::optional<FileError> error = files.readAll(name).error;
        return error ? error->code : 0;
    }

    LocalFileSystem files;
};

TEST_F(LocalFiles, ThatAreScratchAreWrittenAsAWhole)
{
    EXPECT_FALSE(files.writeScratch(path("a.htm"), "old and long"));
    EXPECT_FALSE(files.writeScratch(path("a.htm"), "new"));
    EXPECT_EQ(files.readAll(path("a.htm")).bytes, QByteArray("new"));
    EXPECT_EQ(names(), QStringList(QStringLiteral("a.htm")));
    const std::optional<FileError> error = files.writeScratch(path("none/a.htm"), "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, PathNotFoundError);
}

TEST_F(LocalFiles, AreReadAsTheyWereWritten)
{
    QByteArray bytes("a\0\r\n", 4);
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i);
    EXPECT_EQ(writeCode(path("a.htm"), bytes), 0);
    EXPECT_EQ(files.readAll(path("a.htm")).bytes, bytes);
    EXPECT_EQ(writeCode(path("empty"), {}), 0);
    EXPECT_EQ(files.readAll(path("empty")).bytes, QByteArray());
    EXPECT_FALSE(files.readAll(path("empty")).error);
    EXPECT_EQ(names(), QStringList({QStringLiteral("a.htm"), QStringLiteral("empty")}));
}

TEST_F(LocalFiles, AreReadToTheirEndWhereTheSizeSaysNothing)
{
    EXPECT_TRUE(files.readAll(QStringLiteral("/proc/self/status")).bytes.contains("Pid:"));
}

TEST_F(LocalFiles, TakeTheProcessMaskWhenNew)
{
    const mode_t mask = ::umask(027);
    EXPECT_EQ(writeCode(path("new.htm")), 0);
    ::umask(mask);
    EXPECT_EQ(modeOf("new.htm"), 0640U);
}

TEST_F(LocalFiles, KeepPermissionsAndOwnerWhenReplaced)
{
    put("a.htm", "old");
    ASSERT_EQ(::chmod(native("a.htm").constData(), 0604), 0);
    const bool owned = ::chown(native("a.htm").constData(), 1234, 2345) == 0;
    const bool attributed = ::setxattr(native("a.htm").constData(), "user.note", "x", 1, 0) == 0;
    EXPECT_EQ(writeCode(path("a.htm")), 0);
    EXPECT_EQ(get("a.htm"), "new");
    EXPECT_EQ(modeOf("a.htm"), 0604U);
    if (owned) {
        EXPECT_EQ(statusOf("a.htm").st_uid, 1234U);
        EXPECT_EQ(statusOf("a.htm").st_gid, 2345U);
    }
    if (attributed) {
        char value = 0;
        EXPECT_EQ(::getxattr(native("a.htm").constData(), "user.note", &value, 1), 1);
        EXPECT_EQ(value, 'x');
    }
}

TEST_F(LocalFiles, AreReplacedBehindSymbolicLinks)
{
    put("real/page.htm", "old");
    ASSERT_EQ(::symlink("real/page.htm", native("second").constData()), 0);
    ASSERT_EQ(::symlink(native("second").constData(), native("first").constData()), 0);
    EXPECT_EQ(writeCode(path("first")), 0);
    EXPECT_EQ(get("real/page.htm"), "new");
    EXPECT_TRUE(QFileInfo(path("first")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("second")).isSymLink());
    EXPECT_EQ(names("real"), QStringList(QStringLiteral("page.htm")));
}

TEST_F(LocalFiles, AreMadeWhereALinkLeadsNowhereYet)
{
    ASSERT_EQ(::symlink("page.htm", native("link").constData()), 0);
    EXPECT_EQ(writeCode(path("link")), 0);
    EXPECT_EQ(get("page.htm"), "new");
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
}

TEST_F(LocalFiles, TellMissingFilesFromMissingFolders)
{
    put("file", "x");
    EXPECT_EQ(readCode(path("none.htm")), 53);
    EXPECT_EQ(readCode(path("none/a.htm")), 76);
    EXPECT_EQ(writeCode(path("none/a.htm")), 76);
    EXPECT_EQ(readCode(path("file/a.htm")), 76);
    EXPECT_EQ(writeCode(path("file/a.htm")), 76);
    EXPECT_EQ(files.readAll(path("none.htm")).error->description, QStringLiteral("No such file or directory"));
}

TEST_F(LocalFiles, RefuseNamesThatCannotBe)
{
    const QString tooLong = path("") + QLatin1Char('/') + QString(256, u'n');
    EXPECT_EQ(readCode(tooLong), 52);
    EXPECT_EQ(writeCode(tooLong), 52);
    EXPECT_EQ(readCode(QString()), 52);
    EXPECT_EQ(writeCode(QString()), 52);
    EXPECT_EQ(writeCode(path("a") + QChar(0) + QStringLiteral("b")), 52);
    EXPECT_EQ(readCode(path("a") + QChar(0)), 52);
    ASSERT_EQ(::symlink("loop", native("loop").constData()), 0);
    EXPECT_EQ(readCode(path("loop")), 52);
    EXPECT_EQ(writeCode(path("loop")), 52);
    EXPECT_EQ(names(), QStringList(QStringLiteral("loop")));
}

TEST_F(LocalFiles, TakeTheLongestNameThereIs)
{
    const QString longest = path("") + QLatin1Char('/') + QString(255, u'n');
    EXPECT_EQ(writeCode(longest), 0);
    EXPECT_EQ(writeCode(longest), 0);
    EXPECT_EQ(readCode(longest), 0);
}

TEST_F(LocalFiles, RefuseFoldersInTheirPlace)
{
    ASSERT_FALSE(files.makeFolder(path("folder")));
    EXPECT_EQ(readCode(path("folder")), 75);
    EXPECT_EQ(writeCode(path("folder")), 75);
    EXPECT_TRUE(files.removeFile(path("folder")));
    EXPECT_TRUE(files.isFolder(path("folder")));
}

TEST_F(LocalFiles, RefusePipesSocketsAndDevicesWithoutWaiting)
{
    ASSERT_EQ(::mkfifo(native("pipe").constData(), 0666), 0);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, native("socket").constData(), sizeof address.sun_path);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    for (const QString &name : {path("pipe"), path("socket"), QStringLiteral("/dev/zero")}) {
        EXPECT_EQ(readCode(name), 68) << name.toStdString();
        EXPECT_EQ(writeCode(name), 68) << name.toStdString();
    }
    ::close(listener);
}

TEST_F(LocalFiles, AreRefusedToUsersWithoutTheRight)
{
    put("secret.htm", "old");
    put("shown.htm", "old");
    put("shared/locked.htm", "old");
    ASSERT_EQ(::chmod(native("secret.htm").constData(), 0600), 0);
    ASSERT_EQ(::chmod(native("shared").constData(), 0777), 0);
    ASSERT_EQ(::chmod(native("shared/locked.htm").constData(), 0444), 0);
    if (::getuid() != 0)
        GTEST_SKIP() << "only root can become a user without rights";
    const auto asNobody = [&](const std::function<int()> &steps) {
        return inChild([&] { return becomeNobody() ? steps() : 125; });
    };
    EXPECT_EQ(asNobody([&] { return readCode(path("secret.htm")); }), 75);
    EXPECT_EQ(asNobody([&] { return readCode(path("shown.htm")); }), 0);
    EXPECT_EQ(asNobody([&] { return writeCode(path("shown.htm")); }), 70);
    EXPECT_EQ(asNobody([&] { return writeCode(path("new.htm")); }), 70);
    EXPECT_EQ(asNobody([&] { return writeCode(path("shared/locked.htm")); }), 70);
    EXPECT_EQ(asNobody([&] { return writeCode(path("shared/new.htm")); }), 0);
    EXPECT_EQ(get("shown.htm"), "old");
    EXPECT_EQ(get("shared/locked.htm"), "old");
    EXPECT_EQ(names("shared"), QStringList({QStringLiteral("locked.htm"), QStringLiteral("new.htm")}));
}

TEST_F(LocalFiles, StayAsTheyWereWhenTheDiskIsFull)
{
    put("a.htm", "old");
    const auto withLimit = [&](const char *name) {
        return inChild([&] {
            const rlimit limit = {4096, 4096};
            if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
                return 125;
            return writeCode(path(name), QByteArray(100000, 'n'));
        });
    };
    EXPECT_EQ(withLimit("a.htm"), 61);
    EXPECT_EQ(withLimit("new.htm"), 61);
    EXPECT_EQ(get("a.htm"), "old");
    EXPECT_EQ(names(), QStringList(QStringLiteral("a.htm")));
}

TEST_F(LocalFiles, TellThatTooManyAreOpen)
{
    put("a.htm", "old");
    const auto withLimit = [&](const std::function<int()> &steps) {
        return inChild([&] {
            const rlimit limit = {0, 0};
            return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 ? steps() : 125;
        });
    };
    EXPECT_EQ(withLimit([&] { return readCode(path("a.htm")); }), 67);
    EXPECT_EQ(withLimit([&] { return writeCode(path("a.htm")); }), 67);
    EXPECT_EQ(get("a.htm"), "old");
}

TEST_F(LocalFiles, AreOldOrNewAfterAKillAtAnyMoment)
{
    const QByteArray contents[] = {QByteArray(3'000'000, 'o'), QByteArray(2'000'000, 'n')};
    ASSERT_EQ(writeCode(path("site/a.htm"), contents[0]), 76);
    ASSERT_FALSE(files.makeFolder(path("site")));
    ASSERT_EQ(writeCode(path("site/a.htm"), contents[0]), 0);
    std::mt19937 random(50U);
    for (int round = 0; round < 50; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (int i = 0;; ++i)
                (void)files.writeWhole(path("site/a.htm"), contents[i % 2]);
        }
        ::usleep(static_cast<useconds_t>(random() % 20000U));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const QByteArray found = get("site/a.htm");
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << round << ' ' << found.size();
    }
    EXPECT_EQ(modeOf("site/a.htm") & 0600U, 0600U);
}

TEST_F(LocalFiles, AreTooBigBeyondWhatIsEdited)
{
    put("huge", "x");
    ASSERT_EQ(::truncate(native("huge").constData(), (qint64(1) << 30) + 1), 0);
    EXPECT_EQ(readCode(path("huge")), 7);
}

TEST_F(LocalFiles, TellWhatTheyAre)
{
    put("a.htm", "12345");
    ASSERT_EQ(::symlink("nowhere", native("dangling").constData()), 0);
    EXPECT_TRUE(files.exists(path("a.htm")));
    EXPECT_FALSE(files.exists(path("none")));
    EXPECT_FALSE(files.exists(path("")));
    EXPECT_FALSE(files.exists(path("dangling")));
    EXPECT_TRUE(files.isFolder(path("")));
    EXPECT_FALSE(files.isFolder(path("a.htm")));
    EXPECT_EQ(files.size(path("a.htm")), 5);
    EXPECT_EQ(files.size(path("none")), std::nullopt);
    EXPECT_EQ(files.stamp(path("none")), std::nullopt);
    EXPECT_FALSE(files.details(path("none")));
}

TEST_F(LocalFiles, HaveAStampThatChangesWithEachWrite)
{
    EXPECT_EQ(writeCode(path("a.htm"), "12345"), 0);
    const std::optional<FileStamp> first = files.stamp(path("a.htm"));
    ASSERT_TRUE(first);
    EXPECT_EQ(first->size, 5);
    EXPECT_EQ(files.stamp(path("a.htm")), first);
    ::usleep(20000);
    put("a.htm", "54321");
    const std::optional<FileStamp> second = files.stamp(path("a.htm"));
    EXPECT_NE(second, first);
    EXPECT_EQ(second->inode, first->inode);
    EXPECT_EQ(writeCode(path("a.htm"), "12345"), 0);
    EXPECT_NE(files.stamp(path("a.htm")), second);
}

TEST_F(LocalFiles, ShowTheirProperties)
{
    put(".hidden.htm", "12345");
    const QDateTime before = QDateTime::currentDateTime();
    const std::optional<FileDetails> details = files.details(path(".hidden.htm"));
    ASSERT_TRUE(details);
    EXPECT_EQ(details->size, 5);
    EXPECT_TRUE(details->hidden);
    EXPECT_FALSE(details->readOnly);
    EXPECT_FALSE(details->isFolder);
    EXPECT_LT(qAbs(details->modified.secsTo(before)), 5);
    EXPECT_TRUE(details->accessed.isValid());
    EXPECT_TRUE(files.details(path(""))->isFolder);
    EXPECT_FALSE(files.details(path(""))->hidden);
    if (::getuid() == 0) {
        EXPECT_EQ(inChild([&] { return becomeNobody() && files.details(path(".hidden.htm"))->readOnly ? 1 : 0; }), 1);
    }
}

TEST_F(LocalFiles, AreListedByName)
{
    put("b.htm", "x");
    put("B.htm", "x");
    put(".dot", "x");
    put("folder/inner", "x");
    ASSERT_EQ(::symlink("folder", native("link").constData()), 0);
    const FolderListing listing = files.list(path(""));
    EXPECT_FALSE(listing.error);
    const QList<FolderEntry> expected = {{QStringLiteral(".dot"), false},
                                         {QStringLiteral("B.htm"), false},
                                         {QStringLiteral("b.htm"), false},
                                         {QStringLiteral("folder"), true},
                                         {QStringLiteral("link"), true}};
    EXPECT_EQ(listing.entries, expected);
    EXPECT_EQ(files.list(path("none")).error->code, 76);
    EXPECT_EQ(files.list(path("b.htm")).error->code, 76);
    EXPECT_EQ(files.list(QString()).error->code, 52);
}

TEST_F(LocalFiles, HaveFoldersMadeForThem)
{
    EXPECT_FALSE(files.makeFolder(path("a/b/c")));
    EXPECT_TRUE(files.isFolder(path("a/b/c")));
    EXPECT_FALSE(files.makeFolder(path("a/b/c")));
    put("file", "x");
    EXPECT_EQ(files.makeFolder(path("file/inner"))->code, 76);
    EXPECT_TRUE(files.makeFolder(path("file")));
    EXPECT_EQ(files.makeFolder(QString())->code, 52);
}

TEST_F(LocalFiles, AreRemoved)
{
    put("a.htm", "x");
    EXPECT_FALSE(files.removeFile(path("a.htm")));
    EXPECT_FALSE(files.exists(path("a.htm")));
    EXPECT_EQ(files.removeFile(path("a.htm"))->code, 53);
    EXPECT_EQ(files.removeFile(path("none/a.htm"))->code, 76);
}

TEST_F(LocalFiles, AreCopiedWithTheirPermissions)
{
    put("a.htm", "contents");
    put("b.htm", "other");
    ASSERT_EQ(::chmod(native("a.htm").constData(), 0750), 0);
    EXPECT_FALSE(files.copyFile(path("a.htm"), path("b.htm")));
    EXPECT_EQ(get("b.htm"), "contents");
    EXPECT_EQ(modeOf("b.htm"), 0750U);
    EXPECT_EQ(files.copyFile(path("none"), path("b.htm"))->code, 53);
    EXPECT_EQ(files.copyFile(path("a.htm"), path("none/b.htm"))->code, 76);
    EXPECT_EQ(get("b.htm"), "contents");
}
} // namespace
