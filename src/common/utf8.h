#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// UTF-8 in which text of any kind has a place: the halves of surrogate pairs that stand alone too, which UTF-8 proper
/// has no bytes for. Each is written in the three bytes that its code would take.

/// What a whole stretch of bytes holds, were it UTF-8.
struct Utf8Contents {
    bool onlyAscii = true;
    bool loneHalves = false; ///< some of its characters are half a surrogate pair
};

/// Nothing where the bytes are not valid: cut off, longer than need be, above U+10FFFF, or a pair written as two
/// halves.
std::optional<Utf8Contents> utf8Contents(QByteArrayView bytes);

/// The text of valid bytes; a byte order mark is a character like any other.
QString fromUtf8WithHalves(QByteArrayView bytes);

/// Whether a half of a surrogate pair stands alone in the text.
bool hasLoneHalves(QStringView text);

QByteArray toUtf8WithHalves(QStringView text);
