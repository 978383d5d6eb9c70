#pragma once

#include "common/encodings.h"

/// The text of a page as a server sent it. It is read in the encoding that the answer names, if that is known and the
/// bytes are valid in it; else as a page from the disk is.
DecodedText decodeDownload(const QByteArray &bytes, const QString &charset);
