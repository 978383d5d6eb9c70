#include "document/lineIndent.h"

#include <algorithm>

namespace
{
bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

/// The first character of the line that holds the position.
qsizetype lineStart(QStringView text, qsizetype position)
{
    return text.first(position).lastIndexOf(u'\n') + 1;
}

/// Behind the last line of the selection, in front of its break. A selection that ends at the start of a line leaves
/// that line out.
qsizetype linesEnd(QStringView text, TextSelection selection)
{
    const qsizetype last = selection.start + selection.length;
    if (selection.length > 0 && last == lineStart(text, last))
        return last - 2;
    const qsizetype end = text.indexOf(u'\r', last);
    return end < 0 ? text.size() : end;
}

/// What a step takes from the front of the line.
qsizetype stepInFront(QStringView line, const IndentStyle &style)
{
    if (line.startsWith(u'\t'))
        return 1;
    qsizetype blanks = 0;
    while (blanks < line.size() && blanks < style.width && line[blanks] == u' ')
        ++blanks;
    if (blanks < style.width && blanks < line.size() && line[blanks] == u'\t')
        ++blanks; // the tab takes up what is left of the step
    return blanks;
}

/// Columns from the start of the line, tabs as far as they are shown.
int columns(QStringView line, int tabWidth)
{
    int column = 0;
    for (const QChar c : line)
        column += c == u'\t' ? tabWidth - column % tabWidth : 1;
    return column;
}

/// Where a position of the old text stands in the new one.
class Shift
{
public:
    explicit Shift(TextSelection selection) : m_from(selection.start), m_to(selection.start + selection.length) {}

    /// At `at` of the old text, `taken` characters give way to `put`. A caret in front of both moves only if it is one.
    void change(qsizetype at, qsizetype taken, qsizetype put, bool caretMoves)
    {
        m_newFrom += moved(m_from, at, taken, put, caretMoves);
        m_newTo += moved(m_to, at, taken, put, true);
    }
    TextSelection selection() const { return {m_from + m_newFrom, m_to + m_newTo - m_from - m_newFrom}; }

private:
    static qsizetype moved(qsizetype position, qsizetype at, qsizetype taken, qsizetype put, bool atStart)
    {
        if (position < at || (position == at && !atStart))
            return 0;
        return put - std::min(taken, position - at);
    }

    qsizetype m_from;
    qsizetype m_to;
    qsizetype m_newFrom = 0;
    qsizetype m_newTo = 0;
};
} // namespace

QString indentStep(const IndentStyle &style)
{
    return style.tabs ? QStringLiteral("\t") : QString(style.width, u' ');
}

LineChange indentedLines(QStringView text, TextSelection selection, const IndentStyle &style)
{
    const qsizetype start = lineStart(text, selection.start);
    const qsizetype end = linesEnd(text, selection);
    const QString step = indentStep(style);
    QString lines;
    Shift shift(selection);
    for (qsizetype at = start; at <= end;) {
        const qsizetype found = text.indexOf(u'\n', at);
        const qsizetype next = found < 0 || found > end ? end + 1 : found + 1;
        const QStringView line = text.mid(at, std::min(next, end) - at);
        if (!line.isEmpty() && line.front() != u'\r') {
            lines += step;
            shift.change(at, 0, step.size(), selection.length == 0);
        }
        lines += line;
        at = next;
    }
    return {TextReplacement{start, end - start, lines}, shift.selection()};
}

LineChange outdentedLines(QStringView text, TextSelection selection, const IndentStyle &style)
{
    const qsizetype start = lineStart(text, selection.start);
    const qsizetype end = linesEnd(text, selection);
    QString lines;
    Shift shift(selection);
    for (qsizetype at = start; at <= end;) {
        const qsizetype found = text.indexOf(u'\n', at);
        const qsizetype next = found < 0 || found > end ? end + 1 : found + 1;
        const QStringView line = text.mid(at, std::min(next, end) - at);
        const qsizetype taken = stepInFront(line, style);
        shift.change(at, taken, 0, true);
        lines += line.mid(taken);
        at = next;
    }
    if (lines.size() == end - start)
        return {{}, selection};
    return {TextReplacement{start, end - start, lines}, shift.selection()};
}

LineChange filledToNextStop(QStringView text, qsizetype caret, const IndentStyle &style)
{
    const qsizetype start = lineStart(text, caret);
    const int column = columns(text.mid(start, caret - start), style.tabWidth);
    const QString filling = style.tabs ? QStringLiteral("\t") : QString(style.width - column % style.width, u' ');
    return {TextReplacement{caret, 0, filling}, {caret + filling.size(), 0}};
}

QString indentationBefore(QStringView text, qsizetype caret)
{
    const qsizetype start = lineStart(text, caret);
    qsizetype end = start;
    while (end < caret && isBlank(text[end]))
        ++end;
    return text.mid(start, end - start).toString();
}
