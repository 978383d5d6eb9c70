#pragma once

#include "common/colour.h"
#include "widgets/controls.h"

#include <QString>

class Form;
struct ProgramContext;

/// The 216 colours that every display shows alike, in six blocks of one red each: in a palette of `SafeColumns`
/// columns, three blocks side by side, green rising to the right and blue downwards.
QList<ColourValue> safeColours();
inline constexpr int SafeColumns = 18;

/// The wider choice: a row of greys, under it the hues of the circle, a column each, from light to dark, full colours
/// over dimmed ones.
QList<ColourValue> wideColours();
inline constexpr int WideColumns = 24;

/// Lets the user pick a colour from the palettes: "#RRGGBB", or an empty text when they were left without one.
QString PickColour(ProgramContext &context);

/// Puts a picked colour in place of the active document's selection; without one nothing changes.
void InsertColourCode(ProgramContext &context);

/// What a dialog does with the colour that was picked: stores its text, goes, and leaves the focus to the document.
void leaveWithColour(Form &form, ProgramContext &context, ColourValue colour);

/// A colour control of a form, whose button picks from the palettes.
ColourSelection *colourPicker(ProgramContext &context, const QString &name, const ui::Handler &change = {});
