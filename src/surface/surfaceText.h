#pragma once

#include "common/lineIndex.h"
#include "common/patchedText.h"

#include <QTextCharFormat>

class QTextCursor;
class QTextDocument;

/// The text of a QTextDocument as TextSurface tells it: every character as it was put in, breaks as CR LF.
///
/// The document counts a break as one character and takes some characters (separators, object and frame marks) for its
/// own structure. Those are held in it by a visible mark, whose format carries the character that it stands for. Real
/// occurrences of the mark are held the same way, so that no text reads back as another.
class SurfaceText
{
public:
    explicit SurfaceText(QTextDocument *document) : m_document(document) {}

    /// Replaces the document's whole text, whose breaks are CR LF already, by one in the default format.
    void load(const QString &text);
    /// Puts a text with any breaks in at a cursor without a selection.
    void insert(QTextCursor &cursor, const QString &text, const QTextCharFormat &format);
    /// Follows a change of text that the document reports, in the document's positions. False if it was part of `load`.
    bool follow(int from, int removed, int added);

    const QString &text() const { return m_text.text(); }
    QString mid(qsizetype start, qsizetype length) const { return m_text.mid(start, length); }
    qsizetype length() const { return m_lines.length(); }
    const LineIndex &lines() const { return m_lines; }

    int documentPosition(qsizetype position) const { return static_cast<int>(m_lines.toNarrow(position)); }
    qsizetype position(int documentPosition) const { return m_lines.toWide(documentPosition); }

    /// Whether a text must go through `insert`, since the document would not hold it as it is.
    static bool needsCare(QStringView text);

private:
    QString documentText(int from, int to) const;
    QChar hiddenCharacter(int documentPosition) const;

    QTextDocument *m_document;
    LineIndex m_lines;
    PatchedText m_text;
    bool m_loading = false;
};

/// The property of a mark's format that holds the character it stands for.
constexpr int HiddenCharacterProperty = QTextFormat::UserProperty + 1;
