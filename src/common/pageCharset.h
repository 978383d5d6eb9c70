#pragma once

#include "common/encodings.h"

#include <QString>

/// What a page says of the encoding that its bytes are in.

/// The encoding that a page names, as it stands there ("iso-8859-1"): in the XML declaration at its start, by the
/// `charset` attribute of a `meta` element, or by the `content` of `http-equiv="Content-Type"`. The first one counts;
/// comments are passed over. Empty if there is none.
QString declaredCharset(const QString &pageText);

/// Whether a name for an encoding, as pages use them, stands for this one. "iso-8859-1" and "us-ascii" stand for
/// Windows-1252, as they do to every browser.
bool namesEncoding(const QString &charset, const FileFormat &format);

/// The page with every name of an encoding in it replaced by this one. A page that names none gets a `meta` element
/// behind its `<head>` tag; without such a tag it stays as it is.
QString withDeclaredCharset(const QString &pageText, const QString &charset);

/// Reads a document's bytes. A byte-order mark decides by itself; otherwise bytes that are not valid UTF-8, or are
/// nothing but ASCII, are read in the encoding that the page names, where that is a known one and they are valid in it.
/// All else is as decode() tells. By a Unicode row it is UTF-16.
DecodedText decodePage(const QByteArray &bytes, bool unicodeRow = false);
