#pragma once

#include "common/document.h"

/// The encoding that the Save command writes the document in; characters may still make it another, as encode() tells.
Encoding encodingOfDocument(const Document &document);
/// How the document is written in that encoding: with the line end of its file.
FileFormat formatOfDocument(const Document &document, Encoding encoding);
/// Whether an encoding is UTF-16 of either order.
bool isUtf16(Encoding encoding);
