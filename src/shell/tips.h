#pragma once

#include <QString>
#include <optional>

/// A tip of the Welcome screen by its number, counted from 1; nothing behind the last one.
std::optional<QString> tipOfTheDay(int number);
