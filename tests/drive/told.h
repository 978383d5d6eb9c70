#pragma once

#include "common/colour.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// How values are told in messages and read in scripts.
namespace drive
{
/// The text in double quotes, with the escapes of a script for what does not show.
QString quoted(const QString &text);
/// Several texts, each in double quotes; "none" for none.
QString quotedList(const QStringList &texts);
/// `got` in double quotes; behind it, where two long texts differ first (counted from 0).
QString quotedAgainst(const QString &expected, const QString &got);
/// Bytes as pairs of hexadecimal digits.
QString hexadecimal(const QByteArray &bytes);
/// The bytes of pairs of hexadecimal digits, blanks between them or not; nothing for any other text.
std::optional<QByteArray> bytesOfHexadecimal(const QString &text);

QString truth(bool value); ///< "True" or "False"

/// "#RRGGBB"; nothing for any other text.
std::optional<ColourValue> parseHashColour(const QString &text);
/// A decimal colour, or "default" for the neutral colour of a document; nothing for any other text.
std::optional<ColourValue> parseTextColour(const QString &text);
QString textColour(ColourValue colour); ///< the other way round
} // namespace drive
