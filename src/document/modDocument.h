#pragma once

#include <QString>

class Document;
struct ProgramContext;

/// Makes a new, empty document and shows it. A failure is told by the box for memory errors, with no further effect,
/// and gives nothing.
Document *NewBlankDocument(ProgramContext &context);

/// Fills the active document as the settings say: with nothing, with the text of a file, or with the built-in page. It
/// is clean afterwards. A file that cannot be read is told, and the document stays empty.
void FillBlankDocument(ProgramContext &context);

/// The built-in page; the meta lines are empty for the author to fill in, but for the generator's.
QString builtInPage(bool addMetaInfo);

/// Wraps the text of all open documents to their windows, or of none, and keeps that for the next start.
void ApplyWordWrapSetting(ProgramContext &context, bool enabled);
