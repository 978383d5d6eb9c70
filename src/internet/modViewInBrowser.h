#pragma once

#include <QString>

struct ProgramContext;

/// Shows the active document in the desktop's browser. If it has no file that says what the window says, the user is
/// asked (unless the question was switched off) whether to save it first or to show a temporary copy.
void PreviewActiveDocument(ProgramContext &context);

/// Opens a page or an address in the desktop's browser. What does not look like a web page by its name or address is
/// asked about first; an empty text opens nothing, and leaves the pointer the hourglass that it is by then.
void OpenInBrowser(ProgramContext &context, const QString &target);

/// Opens one of the program's own links, without a question.
void OpenLink(ProgramContext &context, const QString &url);
