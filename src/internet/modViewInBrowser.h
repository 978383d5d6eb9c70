#pragma once

#include <QString>

struct ProgramContext;

/// Opens a page or an address in the desktop's browser. What does not look like a web page by its name or address is
/// asked about first; an empty text opens nothing.
void OpenInBrowser(ProgramContext &context, const QString &target);

/// Opens one of the program's own links, without a question.
void OpenLink(ProgramContext &context, const QString &url);
