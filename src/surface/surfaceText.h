#pragma once

#include "common/lineIndex.h"
#include "common/patchedText.h"

#include <vector>

/// The text of a surface with its lines, in positions of TextSurface.
///
/// A text that is set is shared and not copied, and beside it stand the starts of its lines alone. Every position is a
/// place between two characters, and none stands inside a break.
class SurfaceText
{
public:
    /// Starts anew with a text, which is shared; if there are other breaks than CR LF in it, with one that has these.
    void load(const QString &text);
    /// `removed` characters at `position` give way to `inserted`, whose breaks are CR LF. None of both may cut a break
    /// in two.
    void replace(qsizetype position, qsizetype removed, QStringView inserted);

    const QString &text() const { return m_text.text(); }
    QString mid(qsizetype start, qsizetype length) const { return m_text.mid(start, length); }
    qsizetype length() const { return m_lines.length(); }
    const LineIndex &lines() const { return m_lines; }

    qsizetype lineCount() const { return m_lines.lineCount(); }
    qsizetype lineStart(qsizetype line) const { return m_lines.lineStart(line); }
    qsizetype lineEnd(qsizetype line) const { return m_lines.lineEnd(line); }
    qsizetype lineLength(qsizetype line) const { return lineEnd(line) - lineStart(line); }
    qsizetype lineAt(qsizetype position) const { return m_lines.lineAt(position); }
    /// The position cut to the text, and in front of a break that it stands in.
    qsizetype snapped(qsizetype position) const;

private:
    LineIndex m_lines;
    PatchedText m_text;
};
