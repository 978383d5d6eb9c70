#pragma once

#include <QByteArray>
#include <QSet>
#include <QStringList>

/// The words that a syntax check accepts beside those of HTML: rows of the two dictionaries, and what is passed over
/// for the length of one check. Rows stand as they do in the files; case does not count in words.
class CheckDictionary
{
public:
    /// An element as "«name", an attribute of one element as "»tag»name"; other rows match nothing.
    void add(const QString &row);
    void exclude(const QString &word); ///< accepted as an attribute of any element
    void ignore(const QString &word);

    /// With a tag the word is looked for among its attributes, else among the elements.
    bool accepts(const QString &tag, const QString &word) const;

private:
    QSet<QString> m_elements;
    QSet<QString> m_attributes; ///< "tag»name"
    QSet<QString> m_excluded;
    QSet<QString> m_ignored;
};

/// The row for a word, of a tag or, without one, as an element.
QString dictionaryRow(const QString &tag, const QString &word);

/// The lines of a dictionary's file that are not empty.
QStringList dictionaryLines(const QByteArray &file);
/// The file with a line more. What stands in it stays as it is, byte for byte, unless the new line cannot be written in
/// its encoding; a last line without an end gets one. A line that would read back as two leaves the file alone.
QByteArray withLine(const QByteArray &file, const QString &line);
