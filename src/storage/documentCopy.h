#pragma once

#include "common/fileErrors.h"

#include <QByteArray>
#include <optional>

class Document;
struct Services;

/// A document's text as a file that stands beside the program, for a browser to show.
struct DocumentCopy {
    QString path;
    std::optional<FileError> error; ///< why it could not be written; the file is the one of before, or none
    QByteArray bytes;               ///< what was to be written
};

/// Writes the document's text as it stands to a file of that name in the program's folder, over the one of before. It
/// takes the encoding that a save would take: what the browser makes of it is what it will make of the saved page, and
/// what a page says of its own encoding stays as true, or as wrong, as it is.
DocumentCopy writeDocumentCopy(Services &services, const Document &document, const QString &name);
