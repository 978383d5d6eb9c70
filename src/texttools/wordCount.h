#pragma once

#include <QString>

/// What the Word Count window tells of a text.
struct TextCounts {
    qsizetype words = 0;
    qsizetype characters = 0; ///< of the text beside the tags, line by line without the blanks around it
    qsizetype elements = 0;   ///< every "<"
    qsizetype hyperlinks = 0; ///< beginnings of addresses, in lower case
    bool operator==(const TextCounts &) const = default;
};

/// A word ends at a blank that no further blank follows, or with its line. A line of one character has no word.
TextCounts countText(const QString &text);
