#pragma once

#include "services/messageBoxes.h"

#include <optional>

/// The box for a file error. A code that the table does not name is told by the system's description of it.
MessageBox fileErrorBox(int errorNumber, const QString &description);

/// The box for an operation on a large text; nothing for an error that is none of memory.
std::optional<MessageBox> memoryErrorBox(int errorNumber);
