#pragma once

#include <QString>

class Document;
struct FileFormat;
struct ProgramContext;

/// Makes a new, empty document and shows it. A failure is told by the box for memory errors, with no further effect,
/// and gives nothing.
Document *NewBlankDocument(ProgramContext &context);

/// Fills the active document as the settings say: with nothing, with the text of a file, or with the built-in page. It
/// is clean afterwards. A file that cannot be read is told, and the document stays empty.
void FillBlankDocument(ProgramContext &context);

/// How a new document is written, as the user or the desktop has it.
FileFormat formatOfNewDocument(const ProgramContext &context);

/// The built-in page; the meta lines are empty for the author to fill in, but for the generator's.
QString builtInPage(bool addMetaInfo);
/// The built-in page of today, in a language as "en" and with an encoding's name as "utf-8".
QString pageOfToday(const QString &language, const QString &charset, bool addMetaInfo);

/// Wraps the text of all open documents to their windows, or of none, and keeps that for the next start.
void ApplyWordWrapSetting(ProgramContext &context, bool enabled);
