#pragma once

#include "surface/surfaceText.h"

/// Steps through a text as a caret takes them, in positions of TextSurface. A step over a break passes it in one. What
/// a step costs does not depend on the length of its line.
namespace surfaceMoves
{
/// Over a character as it is read: with its marks, or an emoji of several parts.
qsizetype nextCharacter(const SurfaceText &text, qsizetype position);
qsizetype previousCharacter(const SurfaceText &text, qsizetype position);
/// Where Backspace deletes from: a break, or one character without what stands in front of it.
qsizetype previousCode(const SurfaceText &text, qsizetype position);
/// To the start of the next word, or of the word that the position is behind of.
qsizetype nextWord(const SurfaceText &text, qsizetype position);
qsizetype previousWord(const SurfaceText &text, qsizetype position);
/// The bounds of the word at a position.
qsizetype startOfWord(const SurfaceText &text, qsizetype position);
qsizetype endOfWord(const SurfaceText &text, qsizetype position);
} // namespace surfaceMoves
