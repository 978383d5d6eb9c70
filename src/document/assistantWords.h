#pragma once

#include "common/textSurface.h"

/// The word that the code assistant goes by: what stands between the last blank or line break and the caret, an angle
/// bracket and other signs included. Directly behind a blank, or behind a "<", it is the word in front of that; so a
/// lone "<" is a word only at the start of the text. `pos` is the caret's SelStart + 1. Empty in front of a blank.
/// Looks at the word's surroundings alone.
QString WordAtCaret(const TextSurface &box, qsizetype pos);

/// What stands around a character, up to the next double quotes, line breaks or blanks. `character` counts from 0, and
/// it is the character in front of it that is looked at first: nothing for the first character of a word.
QString WordAtCharacter(const TextSurface &box, qsizetype character);

/// The address that a word holds, from its beginning to the word's end: "www." anywhere, or else one of the schemes
/// that a page may link to. Empty if the word holds none.
QString linkIn(const QString &word);
