#pragma once

#include <QString>

class Document;

/// A document's encoding and line end as the status bar shows them: "UTF-8, CR LF", "Windows-1252, mixed line ends
/// (saved as LF)".
QString fileFormatText(const Document &document);
