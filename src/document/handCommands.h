#pragma once

#include "document/lineChange.h"

class Document;
class TextSurface;
struct ProgramContext;

/// What the commands do that take work off the author's hands. Each acts on the active document, as one step of its
/// history; without a document, or where there is nothing to do, nothing happens.

void ToggleComment(ProgramContext &context);
void MoveLines(ProgramContext &context, bool up);
void DoubleLines(ProgramContext &context);
void RemoveLines(ProgramContext &context);
/// Moves the caret from a tag to its partner.
void GoToPartner(ProgramContext &context);
/// Writes the end tag of the innermost element that is open at the caret.
void CloseElement(ProgramContext &context);
/// Selects the name in the tag at the caret, or else in the start tag of the innermost element that holds the caret.
void SelectElementName(ProgramContext &context);
/// Opens the abbreviation right before the caret. False where there is none, or text is selected.
bool ExpandAbbreviation(ProgramContext &context, Document &document);
/// Puts the elements of an abbreviation around the selection. False, and nothing changed, where it cannot be read.
bool WrapWithAbbreviation(ProgramContext &context, const QString &abbreviation);

/// Goes where an address of the document leads: to a local page as a document, which comes to the front if it is open;
/// anywhere else in the desktop's browser. Nothing for an empty address and for a place in the page.
void FollowLink(ProgramContext &context, const Document &document, const QString &address);
/// The same for the address at the caret of the active document.
void FollowLinkAtCaret(ProgramContext &context);

/// Puts a change into a text.
void applyChange(TextSurface &edit, const LineChange &change);
/// The same as one step of the document's history; nothing in a locked one.
void changeInOneStep(Document &document, const LineChange &change);
