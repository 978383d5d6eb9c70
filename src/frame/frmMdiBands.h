#pragma once

#include <QString>
#include <optional>

/// The bands of the main window's bar of toolbars: their numbers, and how their layout stands in the settings.
namespace bands
{
enum Number { Main = 1, FontStyles, Insert, Code, Help, Address, Browser };

/// The layout of these first bands is kept; all bands are restored as far as the settings hold something.
constexpr int Kept = 5;

/// A flag as the settings hold it.
QString flagText(bool newRow);
/// What a stored flag says: "True" and "False" in any case of their letters, or a number, of which only 0 is false.
/// Nothing for an empty text and for what is neither.
std::optional<bool> flagOf(const QString &text);

QString widthText(double width);
/// A stored width in logical pixels; nothing for an empty text, and for what is no number above 0.
std::optional<double> widthOf(const QString &text);
} // namespace bands
