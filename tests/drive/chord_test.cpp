#include "drive/chord.h"

#include <gtest/gtest.h>

using drive::Chord;
using drive::chordOf;
using drive::parseChord;

namespace
{
struct ChordRow {
    const char *name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char *text;
};
} // namespace

TEST(Chord, IsAKeyWithModifiersAndWhatAKeyboardSends)
{
    const ChordRow rows[] = {
        {"Enter", Qt::Key_Return, Qt::NoModifier, "\r"},
        {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, ""},
        {"Tab", Qt::Key_Tab, Qt::NoModifier, "\t"},
        {"Ctrl+Z", Qt::Key_Z, Qt::ControlModifier, "\x1a"},
        {"ctrl+shift+z", Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "\x1a"},
        {"Alt+f", Qt::Key_F, Qt::AltModifier, "f"},
        {"F12", Qt::Key_F12, Qt::NoModifier, ""},
        {"a", Qt::Key_A, Qt::NoModifier, "a"},
        {"A", Qt::Key_A, Qt::ShiftModifier, "A"},
        {"Shift+a", Qt::Key_A, Qt::ShiftModifier, "A"},
        {"Ctrl++", Qt::Key_Plus, Qt::ControlModifier, "+"},
        {"+", Qt::Key_Plus, Qt::ShiftModifier, "+"},
        {"<", Qt::Key_Less, Qt::ShiftModifier, "<"},
        {"Ctrl+Home", Qt::Key_Home, Qt::ControlModifier, ""},
        {"PageDown", Qt::Key_PageDown, Qt::NoModifier, ""},
    };
    for (const ChordRow &row : rows) {
        const auto chord = parseChord(QString::fromUtf8(row.name));
        ASSERT_TRUE(chord) << row.name;
        EXPECT_EQ(chord->key, row.key) << row.name;
        EXPECT_EQ(chord->modifiers, row.modifiers) << row.name;
        EXPECT_EQ(chord->text, QString::fromUtf8(row.text)) << row.name;
    }
}

TEST(Chord, RefusesWhatIsNoKey)
{
    for (const char *name : {"", "Ctrl+", "Hyper+A", "abc", "F13", "Ctrl+Foo", "Ctrl"})
        EXPECT_FALSE(parseChord(QString::fromUtf8(name))) << name;
}

TEST(Chord, TypesEveryCharacter)
{
    EXPECT_EQ(chordOf(QStringLiteral("\r\n")), (Chord{Qt::Key_Return, {}, QStringLiteral("\r")}));
    EXPECT_EQ(chordOf(QStringLiteral("1")), (Chord{Qt::Key_1, {}, QStringLiteral("1")}));
    EXPECT_EQ(chordOf(QStringLiteral("\u00E4")), (Chord{Qt::Key_Adiaeresis, {}, QStringLiteral("\u00E4")}));
    EXPECT_EQ(chordOf(QStringLiteral("\u00DF")), (Chord{Qt::Key_ssharp, {}, QStringLiteral("\u00DF")}));
    EXPECT_EQ(chordOf(QStringLiteral("\U0001F600")).text, QStringLiteral("\U0001F600"));
}
