#pragma once

#include <QString>

struct ProgramContext;

/// The clipboard commands. They act on the control in use: the active document's edit surface, unless a text field of
/// the main window has the focus. Without either they do nothing.

/// The plain text on the clipboard; nothing where it holds a list of files or a picture.
QString PasteFromClipboard(ProgramContext &context);
void CutToClipboard(ProgramContext &context);
void CopyToClipboard(ProgramContext &context);
void PasteToDocument(ProgramContext &context);
/// Selects the whole text of the control in use.
void SelectAllInActiveControl(ProgramContext &context);
