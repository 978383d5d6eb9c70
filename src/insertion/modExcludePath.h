#pragma once

#include <QString>

struct ProgramContext;

/// A path as it goes into the active document: without the folder of the document's file, if the user wants that left
/// out and the document has a file; else as it is.
QString ExcludePath(ProgramContext &context, const QString &path);

/// The path without the folder of the document at `documentPath`. Wherever in the path the folder stands, in any case
/// of its letters, as many characters as it has go from the path's start; a path that is nothing but the folder stays.
/// No step up to a parent folder is ever written.
QString withoutDocumentFolder(const QString &path, const QString &documentPath);
