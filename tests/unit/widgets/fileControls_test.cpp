#include "storage/localFileSystem.h"
#include "widgets/fileControls.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

class FileControlsTest : public testing::Test
{
protected:
    FileControlsTest()
    {
        QDir(root()).mkpath(str("site/images"));
        QDir(root()).mkpath(str("site/css"));
        for (const char *name : {"site/b.htm", "site/a.htm", "site/images/x.gif"}) {
            QFile file(root() + u'/' + str(name));
            file.open(QIODevice::WriteOnly);
        }
    }

    QString root() const { return QDir(folder.path()).canonicalPath(); }
    QString site() const { return root() + str("/site"); }

    QTemporaryDir folder;
    LocalFileSystem files;
    FolderList folders{files};
    FileList names{files};
};

TEST_F(FileControlsTest, ListsTheWayToAFolderAndWhatIsInIt)
{
    QSignalSpy changes(&folders, &FolderList::pathChanged);
    ASSERT_TRUE(folders.setPath(site()));
    EXPECT_EQ(folders.Path(), site());
    EXPECT_THAT(folders.subfolders(), ElementsAre(site() + str("/css"), site() + str("/images")));
    EXPECT_EQ(folders.item(0)->text(), str("/"));
    EXPECT_EQ(folders.currentItem()->text().trimmed(), str("site"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(folders.setPath(site() + u'/'));
    EXPECT_EQ(changes.count(), 1) << "the same folder";
}

TEST_F(FileControlsTest, StaysWhereItIsForAFolderThatIsNotThere)
{
    folders.setPath(site());
    QSignalSpy changes(&folders, &FolderList::pathChanged);
    EXPECT_FALSE(folders.setPath(root() + str("/none")));
    EXPECT_FALSE(folders.setPath(str("site")));
    EXPECT_FALSE(folders.setPath(QString()));
    EXPECT_EQ(folders.Path(), site());
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(FileControlsTest, OpensAFolderByEnter)
{
    folders.setPath(site());
    folders.show();
    QTest::keyClick(&folders, Qt::Key_Down);
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(folders.Path(), site() + str("/css"));
    QTest::keyClick(&folders, Qt::Key_Up);
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(folders.Path(), site());
}

TEST_F(FileControlsTest, ListsTheFilesOfAFolderWithoutItsFolders)
{
    QSignalSpy changes(&names, &FileList::pathChanged);
    ASSERT_TRUE(names.setPath(site()));
    EXPECT_THAT(names.names(), ElementsAre(str("a.htm"), str("b.htm")));
    EXPECT_FALSE(names.setPath(root() + str("/none")));
    EXPECT_EQ(names.count(), 2);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(FileControlsTest, ChoosesThePlaceThatHoldsAPath)
{
    LocalFileSystem disk;
    DriveList drives(disk);
    EXPECT_EQ(drives.itemText(0), str("/"));
    EXPECT_TRUE(drives.setDrive(QDir::homePath() + str("/x")));
    EXPECT_EQ(drives.Drive(), QDir::homePath());
    EXPECT_TRUE(drives.setDrive(str("/usr/share")));
    EXPECT_EQ(drives.Drive(), str("/"));
    EXPECT_FALSE(drives.setDrive(str("relative")));
    EXPECT_EQ(drives.Drive(), str("/"));
}
} // namespace
