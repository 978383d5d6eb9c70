#include "storage/recoveryFolder.h"

#include "storage/localFileSystem.h"
#include "unit/support/sandbox.h"

#include <QDir>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <memory>

namespace
{
using testing::IsEmpty;
using testing::SizeIs;

class RecoveryFolderTest : public Sandbox
{
protected:
    /// One run of the program; destroying it is what the end of its process does to its lock.
    std::unique_ptr<RecoveryFolder> program() { return std::make_unique<RecoveryFolder>(m_files, path("state")); }

    static QByteArray page(const char *text, int order = 1)
    {
        KeptPage kept;
        kept.order = order;
        kept.text = QString::fromUtf8(text);
        return keptPageBytes(kept);
    }

    static QStringList texts(const RecoveryFolder::Finds &finds)
    {
        QStringList all;
        for (const RecoveryFolder::Found &found : finds.pages)
            all << found.page.text;
        return all;
    }

    QStringList sessions() const { return names("state/recovery"); }

    LocalFileSystem m_files;
};

TEST_F(RecoveryFolderTest, MakesNothingBeforeSomethingIsKept)
{
    const auto kept = program();
    EXPECT_THAT(kept->takeOver().pages, IsEmpty());
    EXPECT_FALSE(QFileInfo::exists(path("state")));
}

TEST_F(RecoveryFolderTest, LetsNobodyElseIn)
{
    const auto kept = program();
    ASSERT_FALSE(kept->write(kept->newFile(), page("a")));
    const auto mine = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    const auto others = QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther;
    const auto permissions = QFileInfo(path("state/recovery")).permissions();
    EXPECT_EQ(permissions & mine, mine);
    EXPECT_FALSE(permissions & others);
}

TEST_F(RecoveryFolderTest, HandsOverWhatAnEndedProgramLeftInItsOrder)
{
    auto first = program();
    first->write(first->newFile(), page("second", 2));
    const QString active = first->newFile();
    first->write(active, page("first", 1));
    first->writeActive(active);
    first.reset();
    const auto second = program();
    const RecoveryFolder::Finds finds = second->takeOver();
    EXPECT_EQ(texts(finds), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
    EXPECT_TRUE(finds.pages[0].active);
    EXPECT_FALSE(finds.pages[1].active);
    EXPECT_EQ(finds.unreadable, QString());
    EXPECT_THAT(sessions(), SizeIs(1)) << "the old folder has gone";
}

TEST_F(RecoveryFolderTest, LosesNothingToASecondKill)
{
    auto first = program();
    first->write(first->newFile(), page("text"));
    first.reset();
    program()->takeOver();
    const auto third = program();
    EXPECT_EQ(texts(third->takeOver()), QStringList{QStringLiteral("text")});
}

TEST_F(RecoveryFolderTest, LeavesARunningProgramItsOwn)
{
    const auto first = program();
    first->write(first->newFile(), page("mine"));
    const auto second = program();
    EXPECT_THAT(second->takeOver().pages, IsEmpty());
    EXPECT_THAT(sessions(), SizeIs(1));
}

TEST_F(RecoveryFolderTest, TakesTheFolderAwayWithItsLastPage)
{
    const auto kept = program();
    const QString one = kept->newFile();
    const QString other = kept->newFile();
    kept->write(one, page("1"));
    kept->write(other, page("2"));
    kept->writeActive(one);
    kept->remove(one);
    EXPECT_THAT(sessions(), SizeIs(1));
    kept->remove(other);
    EXPECT_THAT(sessions(), IsEmpty());
    EXPECT_FALSE(kept->write(one, page("again"))) << "and it can be made again";
}

TEST_F(RecoveryFolderTest, KeepsAsideWhatItCannotRead)
{
    auto first = program();
    const QString file = first->newFile();
    first->write(file, page("whole"));
    first->write(first->newFile(), page("broken").chopped(3));
    first.reset();
    const auto second = program();
    const RecoveryFolder::Finds finds = second->takeOver();
    EXPECT_EQ(texts(finds), QStringList{QStringLiteral("whole")});
    EXPECT_EQ(finds.unreadable, path("state/recovery/unreadable"));
    EXPECT_THAT(names("state/recovery/unreadable"), SizeIs(1));
    EXPECT_EQ(program()->takeOver().unreadable, QString()) << "it is told once";
    EXPECT_THAT(names("state/recovery/unreadable"), SizeIs(1));
}

TEST_F(RecoveryFolderTest, TellsWhyItCannotKeep)
{
    put("state", "a file where the folder should be");
    const auto kept = program();
    const std::optional<FileError> error = kept->write(kept->newFile(), page("a"));
    ASSERT_TRUE(error);
    EXPECT_NE(error->description, QString());
}
} // namespace
