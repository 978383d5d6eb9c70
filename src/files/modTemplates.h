#pragma once

#include <QString>

class Document;
struct ProgramContext;

/// Templates: pages to begin from, alone or packed together with the local files that they refer to.

/// Reads a standard template's text into a new document. As a new page it has no name; otherwise the template itself is
/// edited.
void OpenStandardTemplate(ProgramContext &context, const QString &path, bool asNew);

/// Asks for a new page's name and for where its accompanying files are to go, unpacks them and opens the page.
void OpenCombinedTemplate(ProgramContext &context, const QString &path);

/// Packs a document and the local files that it names into a combined template; the document itself does not change.
/// False if the user has called it off, or if there is no new template.
bool SaveCombinedTemplate(ProgramContext &context, const Document &document, const QString &path);

/// Asks for a name and makes an empty combined template of it.
void AskCombinedTemplateName(ProgramContext &context);

/// Makes an empty combined template, asking first where a file of that name is there.
void CreateCombinedTemplate(ProgramContext &context, const QString &path);

/// Writes one of a combined template's files to `target`, asking first where that is there; nothing for a name that the
/// template does not have. False if that failed, which the user has been told.
bool ExtractFromCombinedTemplate(ProgramContext &context, const QString &path, const QString &name,
                                 const QString &target);
