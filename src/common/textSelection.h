#pragma once

#include <QtGlobal>

/// A selection as the edit surface states it: characters from 0. A length of 0 is a caret.
struct TextSelection {
    qsizetype start = 0;
    qsizetype length = 0;
    bool operator==(const TextSelection &) const = default;
};
