#include "storage/mountTable.h"

#include <gtest/gtest.h>

namespace
{
TEST(MountedVolumes, AreThoseOfTheUser)
{
    const QByteArray table = "sysfs /sys sysfs rw 0 0\n"
                             "/dev/sda1 / ext4 rw 0 0\n"
                             "/dev/sdb1 /media/ann/My\\040stick vfat rw 0 0\n"
                             "server:/pages /mnt/pages nfs rw 0 0\n"
                             "/dev/sdc1 /run/media/ann/a\\134b ext4 rw 0 0\n"
                             "server:/pages /mnt/pages nfs ro 0 0\n"
                             "tmpfs /media tmpfs rw 0 0\n";
    const QStringList expected{QStringLiteral("/media/ann/My stick"), QStringLiteral("/mnt/pages"),
                               QStringLiteral("/run/media/ann/a\\b")};
    EXPECT_EQ(mountedVolumes(table), expected);
}

TEST(MountedVolumes, AreNoneInATableThatIsNone)
{
    EXPECT_EQ(mountedVolumes(""), QStringList());
    EXPECT_EQ(mountedVolumes("a\n\n/media/x\nb /media/cut\\04"), QStringList{QStringLiteral("/media/cut\\04")});
}
} // namespace
