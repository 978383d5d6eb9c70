#include "drive/diskRoom.h"

#include "drive/world.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
class DiskRoomTest : public testing::Test
{
protected:
    void TearDown() override
    {
        drive::liftDiskLimit();
        world.remove();
    }
    int open(const QString &path) const
    {
        return ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    }
    QByteArray folder() const { return QFile::encodeName(world.site()); }

    drive::World world = *drive::World::make();
};
} // namespace

TEST_F(DiskRoomTest, CutsTheWriteThatDoesNotFitAndRefusesTheNext)
{
    const int file = open(world.site() + QStringLiteral("/a"));
    drive::limitDisk(folder(), 5);
    EXPECT_EQ(::write(file, "abc", 3), 3);
    EXPECT_EQ(::write(file, "defg", 4), 2);
    errno = 0;
    EXPECT_EQ(::write(file, "h", 1), -1);
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_EQ(drive::diskLimit()->bytes, 0);
    drive::liftDiskLimit();
    EXPECT_EQ(::write(file, "h", 1), 1);
    ::close(file);
}

TEST_F(DiskRoomTest, CountsWhatTheToolkitWrites)
{
    drive::limitDisk(folder(), 3);
    QFile file(world.site() + QStringLiteral("/a"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_EQ(file.write("abc"), 3);
    EXPECT_EQ(file.write("d"), -1);
}

TEST_F(DiskRoomTest, LeavesOtherFoldersAlone)
{
    drive::limitDisk(folder(), 0);
    const int beside = open(world.home() + QStringLiteral("/a"));
    EXPECT_EQ(::write(beside, "abc", 3), 3);
    ::close(beside);
    const int within = open(world.site() + QStringLiteral("/a"));
    EXPECT_EQ(::write(within, "abc", 3), -1);
    ::close(within);
}
