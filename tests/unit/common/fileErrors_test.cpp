#include "common/fileErrors.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace
{
struct ErrorRow {
    int systemError;
    int reading;
    int writing;
};

TEST(FileErrorCode, TellsTheSystemsRefusalsByTheProgramsTable)
{
    const ErrorRow rows[] = {
        {ENOENT, 53, 76}, {ENOTDIR, 76, 76},   {EACCES, 75, 70},       {EPERM, 75, 70},  {EROFS, 75, 70},
        {ENOSPC, 61, 61}, {EDQUOT, 61, 61},    {EFBIG, 61, 61},        {EISDIR, 75, 75}, {EMFILE, 67, 67},
        {ENFILE, 67, 67}, {EIO, 57, 57},       {ENAMETOOLONG, 52, 52}, {EINVAL, 52, 52}, {ELOOP, 52, 52},
        {ENXIO, 68, 68},  {ENODEV, 68, 68},    {ETXTBSY, 70, 70},      {EBUSY, 70, 70},  {EEXIST, 58, 58},
        {ENOMEM, 7, 7},   {ENOMEDIUM, 71, 71}, {ENOTEMPTY, 75, 75},    {ENOSYS, 51, 51},
    };
    for (const ErrorRow &row : rows) {
        EXPECT_EQ(fileErrorCode(row.systemError, FileAction::Read), row.reading) << row.systemError;
        EXPECT_EQ(fileErrorCode(row.systemError, FileAction::Write), row.writing) << row.systemError;
    }
}

TEST(FileErrorCode, KnowsAMissingFolderFromAMissingFile)
{
    EXPECT_EQ(fileErrorCode(ENOENT, FileAction::Read, true), 76);
    EXPECT_EQ(fileErrorCode(ENOENT, FileAction::Folder), 76);
    EXPECT_EQ(fileErrorCode(EACCES, FileAction::Folder), 75);
}

TEST(FileErrorOf, KeepsTheSystemsOwnWords)
{
    const FileError error = fileErrorOf(ENOSYS, FileAction::Write);
    EXPECT_EQ(error.code, UnknownFileError);
    EXPECT_EQ(error.systemError, ENOSYS);
    EXPECT_EQ(error.description, QStringLiteral("Function not implemented"));
}
} // namespace
