#include "drive/chord.h"

#include <QHash>
#include <QStringList>

namespace drive
{
namespace
{
struct NamedKey {
    const char *name;
    Qt::Key key;
    const char *text; ///< what a keyboard sends with it, if anything
};

constexpr NamedKey namedKeys[] = {
    {"enter", Qt::Key_Return, "\r"},
    {"escape", Qt::Key_Escape, "\x1b"},
    {"tab", Qt::Key_Tab, "\t"},
    {"backspace", Qt::Key_Backspace, "\b"},
    {"delete", Qt::Key_Delete, "\x7f"},
    {"space", Qt::Key_Space, " "},
    {"home", Qt::Key_Home, ""},
    {"end", Qt::Key_End, ""},
    {"pageup", Qt::Key_PageUp, ""},
    {"pagedown", Qt::Key_PageDown, ""},
    {"left", Qt::Key_Left, ""},
    {"right", Qt::Key_Right, ""},
    {"up", Qt::Key_Up, ""},
    {"down", Qt::Key_Down, ""},
    {"insert", Qt::Key_Insert, ""},
    {"f1", Qt::Key_F1, ""},
    {"f2", Qt::Key_F2, ""},
    {"f3", Qt::Key_F3, ""},
    {"f4", Qt::Key_F4, ""},
    {"f5", Qt::Key_F5, ""},
    {"f6", Qt::Key_F6, ""},
    {"f7", Qt::Key_F7, ""},
    {"f8", Qt::Key_F8, ""},
    {"f9", Qt::Key_F9, ""},
    {"f10", Qt::Key_F10, ""},
    {"f11", Qt::Key_F11, ""},
    {"f12", Qt::Key_F12, ""},
};

/// The signs that need Shift on the keyboard that the driver stands for.
const QString ShiftedSigns = QStringLiteral("~!@#$%^&*()_+{}|:\"<>?");

std::optional<Qt::KeyboardModifier> modifierOf(const QString &name)
{
    const QString lower = name.toLower();
    if (lower == QStringLiteral("ctrl"))
        return Qt::ControlModifier;
    if (lower == QStringLiteral("shift"))
        return Qt::ShiftModifier;
    if (lower == QStringLiteral("alt"))
        return Qt::AltModifier;
    return std::nullopt;
}

const NamedKey *namedKey(const QString &name)
{
    for (const NamedKey &key : namedKeys)
        if (name.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0)
            return &key;
    return nullptr;
}

/// A keyboard sends a letter held with Ctrl as a control character.
QString controlText(QChar letter)
{
    const char16_t code = letter.toUpper().unicode();
    return code >= u'A' && code <= u'Z' ? QString(QChar(static_cast<char16_t>(code - u'A' + 1))) : QString(letter);
}

std::optional<Chord> keyOf(const QString &name, Qt::KeyboardModifiers modifiers)
{
    if (const NamedKey *named = namedKey(name)) {
        // Shift turns the Tab key into a key of its own.
        if (named->key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier))
            return Chord{Qt::Key_Backtab, modifiers, QString()};
        return Chord{named->key, modifiers, QLatin1String(named->text)};
    }
    if (name.isEmpty() || name.size() > (name[0].isHighSurrogate() ? 2 : 1))
        return std::nullopt;
    Chord chord = chordOf(name);
    if (modifiers.testFlag(Qt::ControlModifier))
        chord = {chord.key, {}, controlText(name[0])};
    else if (modifiers.testFlag(Qt::AltModifier))
        chord = {chord.key, {}, name.toLower()}; // an accelerator is named by its capital letter
    else if (modifiers.testFlag(Qt::ShiftModifier))
        chord.text = name.toUpper();
    chord.modifiers |= modifiers;
    return chord;
}
} // namespace

std::optional<Chord> parseChord(const QString &text)
{
    Qt::KeyboardModifiers modifiers;
    QString rest = text;
    for (qsizetype plus = rest.indexOf(u'+'); plus > 0 && plus + 1 < rest.size(); plus = rest.indexOf(u'+')) {
        const auto modifier = modifierOf(rest.left(plus));
        if (!modifier)
            return std::nullopt;
        modifiers |= *modifier;
        rest = rest.mid(plus + 1);
    }
    return keyOf(rest, modifiers);
}

Chord chordOf(const QString &character)
{
    const QChar first = character[0];
    if (first == u'\r' || first == u'\n')
        return {Qt::Key_Return, {}, QStringLiteral("\r")};
    if (first == u'\t')
        return {Qt::Key_Tab, {}, character};
    const QString upper = character.toUpper();
    const char32_t code = upper.size() == character.size() ? upper.toUcs4().front() : character.toUcs4().front();
    const bool shifted = (first.isUpper() && first.toLower() != first) || ShiftedSigns.contains(first);
    return {static_cast<Qt::Key>(code), shifted ? Qt::ShiftModifier : Qt::NoModifier, character};
}
} // namespace drive
