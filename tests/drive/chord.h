#pragma once

#include <QString>
#include <Qt>
#include <optional>

namespace drive
{
/// A key with the modifiers held down, and the text that a keyboard sends with it.
struct Chord {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    QString text;
    bool operator==(const Chord &) const = default;
};

/// "Ctrl+Shift+Z", "Enter", "Alt+F", "a", "Ctrl++". Nothing for a text that names no key. Letter case of the names and
/// modifiers does not matter; a capital letter alone is the letter with Shift.
std::optional<Chord> parseChord(const QString &text);

/// The key that types one character, given as one or two code units; CR and LF are Enter, a tab is Tab.
Chord chordOf(const QString &character);
} // namespace drive
