// Whole sessions over disks, folders and files that fail: the message, the old file, the text in the editor, and what
// the next start brings back. Each is a script of the scripted user that is played
// where its fault has been made; what a script can do by itself stands among the scenarios.
#include "faultProcess.h"
#include "unit/support/sandbox.h"

#include <QFile>
#include <fcntl.h>
#include <sys/quota.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
using Variables = QList<std::pair<QByteArray, QByteArray>>;

class FaultySessions : public Sandbox
{
protected:
    void SetUp() override
    {
        // Nobody, too, makes a world there.
        ASSERT_EQ(::mkdir(QFile::encodeName(path("worlds")).constData(), 0777), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(path("worlds")).constData(), 0777), 0);
    }

    QString shipped(const char *script) const
    {
        return QStringLiteral(SCRIPTS "/") + QString::fromUtf8(script) + QStringLiteral(".session");
    }

    void play(const QString &script, Variables variables = {}, const std::function<bool()> &prepare = {}) const
    {
        variables.append({"TMPDIR", QFile::encodeName(path("worlds"))});
        const FaultOutcome outcome = runToEnd({QStringLiteral(DRIVER), {script}, variables, prepare});
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
    }
};

TEST_F(FaultySessions, GoThroughRightsThatAreTakenAway)
{
    if (::geteuid() == 0 && !canActAsNobody())
        GTEST_SKIP() << "no user without rights can be had here";
    for (const char *script : {"permission_taken", "folder_permission_taken", "all_permission_taken"}) {
        SCOPED_TRACE(script);
        play(shipped(script), {}, [] { return ::geteuid() != 0 || actAsNobody(); });
    }
}

TEST_F(FaultySessions, GoThroughAFullDiskInMemory)
{
    if (!canMount())
        GTEST_SKIP() << "nothing can be mounted here";
    play(shipped("full_tmpfs"), {}, unshareMounts);
}

/// Whether an image with the file system that most have can be made and mounted here.
bool canMountImages(const QString &image, const QString &place)
{
    const QString command = QStringLiteral("truncate -s 512k '%1' && mkfs.ext4 -q -F -m 0 -b 1024 -O ^has_journal '%1' "
                                           "&& mkdir -p '%2' && mount -o loop '%1' '%2'")
                                .arg(image, place);
    return runToEnd({QStringLiteral("sh"), {QStringLiteral("-c"), command}, {}, unshareMounts}).status == 0;
}

TEST_F(FaultySessions, GoThroughAFullDisk)
{
    if (!canMountImages(path("image"), path("place")))
        GTEST_SKIP() << "no image of a disk can be mounted here";
    play(shipped("full_ext4"), {}, unshareMounts);
}

TEST_F(FaultySessions, GoThroughAQuota)
{
    const QString image = path("image");
    const QString disk = path("disk");
    const QString command =
        QStringLiteral("truncate -s 8m '%1' && mkfs.ext4 -q -F -m 0 -O quota -E quotatype=usrquota '%1' && "
                       "mkdir -p '%2' && mount -o loop,usrquota '%1' '%2' && rmdir '%2/lost+found' && chmod 777 '%2'")
            .arg(image, disk);
    constexpr unsigned Nobody = 65534;
    const auto limited = [&] {
        if (!unshareMounts() || ::system(QFile::encodeName(command).constData()) != 0)
            return false;
        const int onDisk = ::open(QFile::encodeName(disk).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        dqblk limit = {};
        limit.dqb_bhardlimit = 64;
        limit.dqb_valid = QIF_BLIMITS;
        const long set = ::syscall(SYS_quotactl_fd, onDisk, QCMD(Q_SETQUOTA, USRQUOTA), Nobody, &limit);
        ::close(onDisk);
        return set == 0 && actAsNobody();
    };
    if (runToEnd({QStringLiteral("true"), {}, {}, limited}).status != 0 || !canActAsNobody())
        GTEST_SKIP() << "no quota can be set here";
    play(shipped("quota"), {{"TAGWRIGHTER_DISK", QFile::encodeName(disk)}}, limited);
}

TEST_F(FaultySessions, GoThroughCallsThatFail)
{
    struct Row {
        const char *rules;
        const char *box;
    };
    const Row rows[] = {
        {"write:/site/f/:1:5", "Internal Disk Error!"},       {"write:/site/f/:1:28", "Disk Is Full!"},
        {"fsync:/site/f/:1:5", "Internal Disk Error!"},       {"close:/site/f/#:1:122", "Disk Is Full!"},
        {"rename:/site/f/a.htm:1:5", "Internal Disk Error!"}, {"rename:/site/f/a.htm:1:116", "Disk Not Ready!"},
    };
    QFile pattern(shipped("failing"));
    ASSERT_TRUE(pattern.open(QIODevice::ReadOnly));
    const QByteArray text = pattern.readAll();
    for (const Row &row : rows) {
        SCOPED_TRACE(row.rules);
        put("failing.session", QByteArray(text).replace("@BOX@", row.box));
        // The first call is the script's own, which makes the file.
        QByteArray rules = row.rules;
        if (rules.startsWith("write"))
            rules.replace(":1:", ":2:");
        play(path("failing.session"), withFaults(rules));
    }
}

TEST_F(FaultySessions, GoThroughCallsThatWait)
{
    play(shipped("waiting"),
         withFaults("write:/site/f/:1+:wait300;fsync:/site/f/:1+:wait300;rename:/site/f/:1+:wait300"));
}
} // namespace
