#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

/// Each byte as a character of Windows-1252; never fails.
QString fromWindows1252(QByteArrayView bytes);

/// The byte of a character, or nothing where the code page has no place for it.
std::optional<char> windows1252Byte(char16_t code);
