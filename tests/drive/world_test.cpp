#include "drive/world.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

using drive::World;

namespace
{
class WorldTest : public testing::Test
{
protected:
    void TearDown() override { world.remove(); }
    World world = *World::make();
};

void writeFile(const QString &path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
}
} // namespace

TEST_F(WorldTest, HasItsFoldersAndGoesWithThem)
{
    for (const QString &folder : {world.app(), world.site(), world.home()})
        EXPECT_TRUE(QFileInfo(folder).isDir()) << qPrintable(folder);
    EXPECT_TRUE(QDir(world.site()).isEmpty());
    world.remove();
    EXPECT_FALSE(QFileInfo::exists(world.root()));
}

TEST_F(WorldTest, IsAnotherOneEachTime)
{
    const World other = *World::make();
    EXPECT_NE(other.root(), world.root());
    other.remove();
}

TEST_F(WorldTest, ReplacesItsMarksAnywhere)
{
    EXPECT_EQ(world.expanded(QStringLiteral("<%SITE%/a %HOME%%APP%>%site%")),
              QStringLiteral("<%1/a %2%3>%site%").arg(world.site(), world.home(), world.app()));
}

TEST_F(WorldTest, KnowsWhatLiesInIt)
{
    EXPECT_TRUE(world.holds(world.site() + QStringLiteral("/a/b")));
    EXPECT_TRUE(world.holds(world.home()));
    EXPECT_FALSE(world.holds(QStringLiteral("/usr/share")));
    EXPECT_FALSE(world.holds(world.root() + QStringLiteral("x")));
    EXPECT_FALSE(world.holds(world.site() + QStringLiteral("/../../outside")));
    ASSERT_TRUE(QFile::link(QStringLiteral("/usr"), world.site() + QStringLiteral("/link")));
    EXPECT_FALSE(world.holds(world.site() + QStringLiteral("/link/share")));
    EXPECT_TRUE(world.holds(world.site() + QStringLiteral("/link"))); // the link itself
}

TEST_F(WorldTest, RemovesWhatWasMadeReadOnlyButNothingBehindLinks)
{
    const QString outside = world.home() + QStringLiteral("/kept");
    writeFile(outside);
    const QString folder = world.site() + QStringLiteral("/locked");
    QDir().mkpath(folder + QStringLiteral("/inner"));
    writeFile(folder + QStringLiteral("/inner/a.txt"));
    ASSERT_TRUE(QFile::link(world.home(), folder + QStringLiteral("/inner/home")));
    QFile::setPermissions(folder + QStringLiteral("/inner"), QFileDevice::ReadOwner);
    QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    EXPECT_TRUE(drive::removeAll(folder));
    EXPECT_FALSE(QFileInfo::exists(folder));
    EXPECT_TRUE(QFileInfo::exists(outside));
    EXPECT_TRUE(drive::removeAll(world.site() + QStringLiteral("/nothing")));
}
