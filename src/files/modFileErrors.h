#pragma once

#include "services/messageBoxes.h"

#include <optional>
#include <span>

/// One row of the table of file errors.
struct FileErrorMessage {
    int code;
    const char *title;
    const char *text; ///< lines parted by CR LF
    MessageIcon icon;
};

/// The table, by code.
std::span<const FileErrorMessage> fileErrorMessages();

/// The box for a file error. A code that the table does not name is told by the system's description of it.
MessageBox fileErrorBox(int errorNumber, const QString &description);

/// The box for an operation on a large text; nothing for an error that is none of memory.
std::optional<MessageBox> memoryErrorBox(int errorNumber);
