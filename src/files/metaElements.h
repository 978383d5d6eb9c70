#pragma once

#include "common/encodings.h"

#include <QString>

/// What a page says of itself in its `meta` elements.

/// The encoding that a page names, as it stands there ("iso-8859-1"): by a `charset` attribute, or by the `content` of
/// `http-equiv="Content-Type"`. The first one counts; comments are passed over. Empty if there is none.
QString declaredCharset(const QString &pageText);

/// Whether a name for an encoding, as pages use them, stands for this one. "iso-8859-1" and "us-ascii" stand for
/// Windows-1252, as they do to every browser.
bool namesEncoding(const QString &charset, Encoding encoding);

/// The `content` of the `meta` element of that name ("author"), as written by this program: name before content, both
/// in double quotes, one blank between. Letter case is ignored. Empty if there is none.
QString metaContent(const QString &pageText, const QString &name);
