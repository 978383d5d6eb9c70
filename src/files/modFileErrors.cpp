#include "files/modFileErrors.h"

#include "common/fileErrors.h"

#include <algorithm>
#include <array>

namespace
{
constexpr int ControlOutOfMemoryError = 31001; // as an edit surface says it

constexpr MessageIcon Stop = MessageIcon::Critical;
constexpr MessageIcon Exclamation = MessageIcon::Exclamation;

struct FileErrorMessage {
    int code;
    const char *title;
    const char *text; ///< lines parted by CR LF
    MessageIcon icon;
};

// clang-format off
constexpr std::array table{
    FileErrorMessage{7, "Out of Memory", "There is not enough memory to complete the operation.\r\nPlease close some applications, and then try again.", Exclamation},
    FileErrorMessage{52, "Illegal File Name", "You can not use that file name.", Stop},
    FileErrorMessage{53, "File Not Found", "The file could not be found.", Exclamation},
    FileErrorMessage{54, "Bad File Mode", "The file can not be opened for that type of access.", Stop},
    FileErrorMessage{55, "File Already Open", "The file is already open. If it is open in another application, try closing it.", Stop},
    FileErrorMessage{57, "Internal Disk Error!", "An internal disk error occurred.", Stop},
    FileErrorMessage{58, "File Already Exists", "The file already exists.", Exclamation},
    FileErrorMessage{61, "Disk Is Full!", "The disk is full. Please replace the disk, create more free space, or specify a new drive.", Exclamation},
    FileErrorMessage{62, "File Corrupt", "The file is corrupt, or is in the wrong format.", Stop},
    FileErrorMessage{64, "Illegal File Name", "You can not use that file name.", Stop},
    FileErrorMessage{67, "Too Many Files Open", "There are too many files open.\r\nPlease close some, and try again.", Stop},
    FileErrorMessage{68, "Invalid Path!", "The path does not exist.", Exclamation},
    FileErrorMessage{70, "Can Not Write to File", "An attempt was made to write to a write-protected disk, or a locked file.\r\nThe operation could not be completed.", Exclamation},
    FileErrorMessage{71, "Disk Not Ready!", "The disk is not ready. Make sure that a disk is available.", Stop},
    FileErrorMessage{75, "Path/File Access Error", "The file could not be opened.\r\nThe path specified may not exist, or the file may be read-only.", Exclamation},
    FileErrorMessage{76, "Path Not Found", "The path does not exist.", Exclamation},
};
// clang-format on

MessageBox unknownErrorBox(int errorNumber, const QString &description)
{
    const QString told = description.isEmpty() ? QStringLiteral("Error %1").arg(errorNumber) : description;
    return {.title = QStringLiteral("Unknown Error"),
            .text = QStringLiteral("Unknown error:\r\n") + told,
            .icon = Exclamation,
            .buttons = MessageButtons::OK};
}
} // namespace

MessageBox fileErrorBox(int errorNumber, const QString &description)
{
    const auto *const row = std::find_if(table.begin(), table.end(),
                                         [&](const FileErrorMessage &message) { return message.code == errorNumber; });
    if (row == table.end())
        return unknownErrorBox(errorNumber, description);
    return {.title = QString::fromLatin1(row->title),
            .text = QString::fromLatin1(row->text),
            .icon = row->icon,
            .buttons = MessageButtons::OK};
}

std::optional<MessageBox> memoryErrorBox(int errorNumber)
{
    if (errorNumber != OutOfMemoryError && errorNumber != ControlOutOfMemoryError)
        return std::nullopt;
    return MessageBox{.title = QStringLiteral("Insufficient Memory"),
                      .text = QStringLiteral("There is insufficient memory to complete this operation. You might need "
                                             "to close some documents before you continue."),
                      .icon = Stop,
                      .buttons = MessageButtons::OK};
}
