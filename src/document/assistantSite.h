#pragma once

#include <QString>
#include <QStringList>

class Document;
struct ProgramContext;

/// What the site of a document offers to the assistant, read when it is asked for.

/// The classes ('.') or ids ('#') of the style sheets: of those in the page, of those that it links to beside it, and
/// of those of the open project.
QStringList styleNames(const ProgramContext &context, const Document &document, QChar sign);
/// The files and folders (with "/" behind) in a folder as the page names it: relative to the page, or with "/" in front
/// from the folder of the open project. Hidden ones are not told.
QStringList siteFiles(const ProgramContext &context, const Document &document, const QString &folder);
