#pragma once

#include <QString>
#include <optional>

/// Gives a file that can't be the program's own another name beside it, one that is free: "NAME.aside", "NAME.aside2",
/// ... Nothing of it is read or lost. The new path; nothing if it could not be had.
std::optional<QString> setAside(const QString &path);
