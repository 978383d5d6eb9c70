#pragma once

#include "common/encodings.h"

#include <QFont>

class SettingsStore;

/// What the user has set up of the editor itself, read from the settings.

/// The font of the source: the desktop's fixed one, but for what was set.
QFont editorFont(SettingsStore &store);
/// The characters from one tab stop to the next, 1 to 16.
int tabWidth(SettingsStore &store);
/// What one step of indentation is, where the rules of today hold.
struct IndentStyle {
    int width = 4;     ///< columns, 1 to 16
    bool tabs = false; ///< a step is written as a tab
    int tabWidth = 4;  ///< columns from one tab stop to the next, as they are shown
};
IndentStyle indentStyle(SettingsStore &store);
/// How a new document is written. `unset` ends the lines where the user has chosen no line end.
FileFormat newDocumentFormat(SettingsStore &store, LineEnd unset = LineEnd::CrLf);

constexpr int SmallestTabWidth = 1;
constexpr int LargestTabWidth = 16;
constexpr int SmallestFontSize = 6; ///< points
constexpr int LargestFontSize = 72;
