#pragma once

#include "common/document.h"

/// The encoding that the Save command writes the document in; characters may still make it another, as encode() tells.
Encoding encodingOfDocument(const Document &document);
