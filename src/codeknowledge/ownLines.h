#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// The lines of one of the program's own text files, numbered from 0, as decodeOwnFile() would read them; a line
/// becomes text when it is asked for. A last line without an end counts if it is not empty.
class OwnLines
{
public:
    OwnLines() = default;
    /// The bytes of a file of less than 2 GiB.
    explicit OwnLines(const QByteArray &bytes);

    int size() const { return m_starts.empty() ? 0 : static_cast<int>(m_starts.size()) - 1; }
    QString text(int line) const;
    /// How often a character from U+0080 to U+00BF is in a line, both counted in one.
    int count(int line, char16_t one, char16_t other) const;
    /// Whether a line starts with such a character, twice.
    bool startsWithTwo(int line, char16_t character) const;

private:
    QByteArrayView bytesOf(int line) const;

    QByteArray m_bytes;
    bool m_utf8 = false;       ///< else Windows-1252
    std::vector<int> m_starts; ///< where each line starts, and behind the last one
};
