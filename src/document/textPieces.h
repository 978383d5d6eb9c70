#pragma once

#include <QString>
#include <vector>

/// A text that is kept in pieces of a few thousand characters, of which it shares those that a similar text has
/// already.
///
/// Where a piece ends depends on the characters in front of that place alone, so a change in one place, or in many,
/// leaves the pieces between them what they were.
class TextPieces
{
public:
    TextPieces() = default;
    TextPieces(const QString &text, const TextPieces &similar);

    bool isEmpty() const { return m_pieces.empty(); }
    /// The whole text again: its characters are copied.
    QString text() const;
    /// Whether this is that text.
    bool holds(QStringView text) const;

private:
    std::vector<QString> m_pieces;
};
