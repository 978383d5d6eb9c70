#pragma once

#include <QStringView>
#include <iterator>
#include <vector>

/// Where the lines of a text start, kept up to date through edits.
///
/// It knows two countings of positions, both from 0: the wide one of TextSurface, in which a line break (CR LF) is two
/// characters, and the narrow one, in which it is one. A wide position inside a break stands for the one before it.
/// Every question takes logarithmic time. An edit takes time in proportion to the lines between it and the edit before,
/// not to the size of the text.
class LineIndex
{
public:
    /// Starts anew with a text. False, and nothing changes, if a CR or an LF stands alone in it.
    bool reset(QStringView text);
    /// Tells that `removed` characters at the wide `position` have given way to `inserted`. None of both may cut a
    /// break in two.
    void replace(qsizetype position, qsizetype removed, QStringView inserted);

    qsizetype lineCount() const { return std::ssize(m_front) + std::ssize(m_back); }
    qsizetype length() const { return m_length; } ///< wide
    qsizetype narrowLength() const { return m_length - (lineCount() - 1); }

    qsizetype lineStart(qsizetype line) const;  ///< wide; the line must be there
    qsizetype lineEnd(qsizetype line) const;    ///< wide, in front of the break
    qsizetype lineAt(qsizetype position) const; ///< of a wide position; cut to the first and the last line

    qsizetype toNarrow(qsizetype wide) const; ///< cut to the text
    qsizetype toWide(qsizetype narrow) const; ///< cut to the text
    qsizetype snapped(qsizetype wide) const { return toWide(toNarrow(wide)); }

private:
    void moveGapTo(qsizetype line);
    template <typename Before>
    qsizetype lastLineNotBehind(Before isNotBehind) const;

    // The starts in front of the place of the last edit count from the text's start, those behind it from the text's
    // end and in reverse order: so an edit between the two moves neither.
    std::vector<qsizetype> m_front;
    std::vector<qsizetype> m_back = {0};
    qsizetype m_length = 0;
};
