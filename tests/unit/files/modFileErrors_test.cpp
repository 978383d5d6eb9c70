#include "files/modFileErrors.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    int code;
    const char *title;
    const char *text;
    MessageIcon icon;
};

constexpr MessageIcon Stop = MessageIcon::Critical;
constexpr MessageIcon Exclamation = MessageIcon::Exclamation;

class FileErrorBox : public testing::TestWithParam<Row>
{
};

TEST_P(FileErrorBox, TellsTheErrorInPlainWords)
{
    const Row &row = GetParam();
    const MessageBox box = fileErrorBox(row.code, QStringLiteral("not told"));
    EXPECT_EQ(box.title, QLatin1String(row.title));
    EXPECT_EQ(box.text, QLatin1String(row.text));
    EXPECT_EQ(box.icon, row.icon);
    EXPECT_EQ(box.buttons, MessageButtons::OK);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FileErrorBox,
    testing::Values(
        Row{7, "Out of Memory",
            "There is not enough memory to complete the operation.\r\nPlease close some applications, and then try "
            "again.",
            Exclamation},
        Row{52, "Illegal File Name", "You can not use that file name.", Stop},
        Row{53, "File Not Found", "The file could not be found.", Exclamation},
        Row{54, "Bad File Mode", "The file can not be opened for that type of access.", Stop},
        Row{55, "File Already Open", "The file is already open. If it is open in another application, try closing it.",
            Stop},
        Row{57, "Internal Disk Error!", "An internal disk error occurred.", Stop},
        Row{58, "File Already Exists", "The file already exists.", Exclamation},
        Row{61, "Disk Is Full!",
            "The disk is full. Please replace the disk, create more free space, or specify a new drive.", Exclamation},
        Row{62, "File Corrupt", "The file is corrupt, or is in the wrong format.", Stop},
        Row{64, "Illegal File Name", "You can not use that file name.", Stop},
        Row{67, "Too Many Files Open", "There are too many files open.\r\nPlease close some, and try again.", Stop},
        Row{68, "Invalid Path!", "The path does not exist.", Exclamation},
        Row{70, "Can Not Write to File",
            "An attempt was made to write to a write-protected disk, or a locked file.\r\nThe operation could not be "
            "completed.",
            Exclamation},
        Row{71, "Disk Not Ready!", "The disk is not ready. Make sure that a disk is available.", Stop},
        Row{75, "Path/File Access Error",
            "The file could not be opened.\r\nThe path specified may not exist, or the file may be read-only.",
            Exclamation},
        Row{76, "Path Not Found", "The path does not exist.", Exclamation}),
    [](const auto &tested) { return "Code" + std::to_string(tested.param.code); });

TEST(FileErrorBoxOther, KnowsSixteenCodesAndNoOther)
{
    int known = 0;
    for (int code = -1; code <= 32768; ++code)
        known += fileErrorBox(code, {}).title != QStringLiteral("Unknown Error");
    EXPECT_EQ(known, 16);
}

TEST(FileErrorBoxOther, TellsAnyOtherCodeByItsDescription)
{
    for (const int code : {8, 0, -1, 51, 65, 32767}) {
        const MessageBox box = fileErrorBox(code, QStringLiteral("The stars are wrong"));
        EXPECT_EQ(box.title, QStringLiteral("Unknown Error"));
        EXPECT_EQ(box.text, QStringLiteral("Unknown error:\r\nThe stars are wrong"));
        EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    }
}

TEST(FileErrorBoxOther, NamesTheCodeWhereThereIsNoDescription)
{
    EXPECT_EQ(fileErrorBox(8, {}).text, QStringLiteral("Unknown error:\r\nError 8"));
}

TEST(MemoryErrorBox, ShowsOnlyForErrorsOfMemory)
{
    for (const int code : {7, 31001}) {
        const std::optional<MessageBox> box = memoryErrorBox(code);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->title, QStringLiteral("Insufficient Memory"));
        EXPECT_EQ(box->text, QStringLiteral("There is insufficient memory to complete this operation. You might need "
                                            "to close some documents before you continue."));
        EXPECT_EQ(box->icon, MessageIcon::Critical);
        EXPECT_EQ(box->buttons, MessageButtons::OK);
    }
    for (const int code : {0, 6, 8, 61, 31000})
        EXPECT_FALSE(memoryErrorBox(code));
}
} // namespace
