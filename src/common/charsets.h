#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The encodings of pages beside Unicode and Windows-1252: single-byte and Asian ones, as far as the ICU library has
/// them.

/// The name by which an encoding is known, for a label as pages write it, in any case: "KOI8-R" for "cskoi8r",
/// "windows-1254" for "iso-8859-9", as browsers read it. Nothing for an encoding that is not known, for the Unicode
/// ones and Windows-1252, which are told by their bytes, and for those whose markup would not read as ASCII.
std::optional<QString> charsetOfLabel(const QString &label);

/// The text of bytes in an encoding of that name. Nothing where they are not valid in it, or where the text would be
/// written as other bytes.
std::optional<QString> fromCharset(const QByteArray &bytes, const QString &charset);

/// The bytes of a text in that encoding. Nothing where a character has no place in it.
std::optional<QByteArray> toCharset(QStringView text, const QString &charset);
