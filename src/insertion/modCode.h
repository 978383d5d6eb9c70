#pragma once

#include <QString>

struct ProgramContext;

/// Puts the two texts around the active document's selection. The caret then stands in front of the closing text,
/// behind what was selected; with an empty closing text behind it all. Nothing without a document.
void WrapSelection(ProgramContext &context, const QString &openText, const QString &closeText);

/// The same without colouring the document again, as the font and size lists do it.
void wrapPlainly(ProgramContext &context, const QString &openText, const QString &closeText);
