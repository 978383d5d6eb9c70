// Files that no rename can replace as they are: they are written in place, and stay what they were in all else.
#include "savingPlace.h"

#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
class SavesInPlace : public SavingPlace
{
protected:
    void SetUp() override
    {
        put("site/a.htm", "old");
        ASSERT_EQ(::mkdir(native("state").constData(), 0777), 0);
        allow("state", 0777);
        before = status();
    }

    struct stat status() const
    {
        struct stat found = {};
        EXPECT_EQ(::stat(QFile::encodeName(page()).constData(), &found), 0);
        return found;
    }
    void allow(const char *name, mode_t mode) const { ASSERT_EQ(::chmod(native(name).constData(), mode), 0) << name; }
    void expectSameFile()
    {
        EXPECT_EQ(get("site/a.htm"), newPage());
        EXPECT_EQ(status().st_ino, before.st_ino);
        EXPECT_EQ(status().st_uid, before.st_uid);
        EXPECT_EQ(status().st_gid, before.st_gid);
        expectNothingNoted();
    }

    struct stat before = {};
};

TEST_F(SavesInPlace, KeepHardLinks)
{
    ASSERT_EQ(::link(native("site/a.htm").constData(), native("b.htm").constData()), 0);
    EXPECT_EQ(save(), 0);
    expectSameFile();
    EXPECT_EQ(get("b.htm"), newPage());
    EXPECT_EQ(status().st_nlink, 2U);
}

TEST_F(SavesInPlace, KeepAttributes)
{
    const int set = ::setxattr(native("site/a.htm").constData(), "user.note", "mine", 4, 0);
    if (set != 0 && errno == ENOTSUP)
        GTEST_SKIP() << "files have no attributes of their own here";
    ASSERT_EQ(set, 0);
    EXPECT_EQ(save(), 0);
    expectSameFile();
    std::array<char, 10> value{};
    EXPECT_EQ(::getxattr(native("site/a.htm").constData(), "user.note", value.data(), value.size()), 4);
    EXPECT_STREQ(value.data(), "mine");
}

TEST_F(SavesInPlace, KeepAccessLists)
{
    // Version 2, then tag, rights and number each: the owner and user 1234 may write, the group, the mask, others.
    const QByteArray list = QByteArray::fromHex("02000000"
                                                "01000600ffffffff"
                                                "02000600d2040000"
                                                "04000400ffffffff"
                                                "10000600ffffffff"
                                                "20000400ffffffff");
    const QByteArray name = native("site/a.htm");
    const int set =
        ::setxattr(name.constData(), "system.posix_acl_access", list.constData(), static_cast<size_t>(list.size()), 0);
    if (set != 0 && errno == ENOTSUP)
        GTEST_SKIP() << "files have no access lists here";
    ASSERT_EQ(set, 0);
    EXPECT_EQ(save(), 0);
    expectSameFile();
    QByteArray found(200, '\0');
    found.truncate(::getxattr(name.constData(), "system.posix_acl_access", found.data(), 200));
    EXPECT_EQ(found, list);
}

TEST_F(SavesInPlace, WorkInAFolderThatTakesNoSecondFile)
{
    if (!canActAsNobody())
        GTEST_SKIP() << "no user without rights can be had here";
    allow("site", 0755);
    allow("site/a.htm", 0666);
    EXPECT_EQ(save({}, actAsNobody), 0);
    expectSameFile();
}

TEST_F(SavesInPlace, WorkInAFolderWhereOnlyOwnersRename)
{
    if (!canActAsNobody())
        GTEST_SKIP() << "no user without rights can be had here";
    allow("site", 01777);
    allow("site/a.htm", 0666);
    EXPECT_EQ(save({}, actAsNobody), 0);
    expectSameFile();
    EXPECT_EQ(names("site"), QStringList(QStringLiteral("a.htm")));
}

TEST_F(SavesInPlace, KeepAnOwnerThatCannotBeGiven)
{
    if (!canActAsNobody())
        GTEST_SKIP() << "no user without rights can be had here";
    allow("site", 0777);
    allow("site/a.htm", 0666);
    EXPECT_EQ(save({}, actAsNobody), 0);
    expectSameFile();
}

TEST_F(SavesInPlace, WorkOnAFileThatIsMountedByItself)
{
    if (!canMount())
        GTEST_SKIP() << "nothing can be mounted here";
    put("outside.htm", "old");
    EXPECT_EQ(save({}, [this] { return unshareMounts() && mountAt(path("outside.htm"), page(), "bind", {}); }), 0);
    EXPECT_EQ(get("outside.htm"), newPage());
    EXPECT_EQ(get("site/a.htm"), "old") << "what is hidden below stays";
    EXPECT_EQ(names("site"), QStringList(QStringLiteral("a.htm")));
    expectNothingNoted();
}

TEST_F(SavesInPlace, AreRefusedWhereTheOldBytesCannotBeKept)
{
    ASSERT_EQ(::link(native("site/a.htm").constData(), native("b.htm").constData()), 0);
    ASSERT_EQ(::rmdir(native("state").constData()), 0);
    put("state", "a file where the folder should be");
    EXPECT_EQ(save(), ENOTDIR);
    EXPECT_EQ(get("site/a.htm"), "old");
    EXPECT_EQ(get("b.htm"), "old");
}
} // namespace
