#include "document/lineIndent.h"

#include "document/markupCharacters.h"

#include <algorithm>

namespace
{
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

/// The lines of a span, each without its break.
QList<LineSpan> linesIn(QStringView text, LineSpan span)
{
    QList<LineSpan> lines;
    for (qsizetype at = span.start; at <= span.end; at = lines.constLast().end + 2)
        lines.append({at, std::min(lineEnd(text, at), span.end)});
    return lines;
}
} // namespace

QString indentStep(const IndentStyle &style)
{
    return style.tabs ? QStringLiteral("\t") : QString(style.width, u' ');
}

LineChange indentedLines(QStringView text, TextSelection selection, const IndentStyle &style)
{
    const LineSpan span = linesOf(text, selection);
    const QString step = indentStep(style);
    SpanEdits edits(text, span, selection);
    for (const LineSpan &line : linesIn(text, span))
        if (line.end > line.start)
            edits.edit(line.start, 0, step, selection.length == 0);
    return edits.change();
}

LineChange outdentedLines(QStringView text, TextSelection selection, const IndentStyle &style)
{
    const LineSpan span = linesOf(text, selection);
    SpanEdits edits(text, span, selection);
    for (const LineSpan &line : linesIn(text, span))
        edits.edit(line.start, stepInFront(text.mid(line.start, line.end - line.start), style), {});
    return edits.change();
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
