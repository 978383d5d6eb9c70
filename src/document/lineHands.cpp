#include "document/lineHands.h"

#include "common/paths.h"
#include "document/markupCharacters.h"

#include <QList>
#include <algorithm>

namespace
{
constexpr qsizetype BreakLength = 2;

qsizetype firstInk(QStringView text, LineSpan line)
{
    qsizetype at = line.start;
    while (at < line.end && (isBlank(text[at]) || text[at] == u'\r' || text[at] == u'\n'))
        ++at;
    return at;
}

QList<LineSpan> linesWithInk(QStringView text, LineSpan span)
{
    QList<LineSpan> lines;
    for (qsizetype at = span.start; at <= span.end;) {
        const LineSpan line{at, std::min(lineEnd(text, at), span.end)};
        if (firstInk(text, line) < line.end)
            lines.append(line);
        at = line.end + BreakLength;
    }
    return lines;
}

struct Signs {
    QStringView open;
    QStringView close;
};

constexpr Signs htmlSigns{u"<!--", u"-->"};
constexpr Signs cssSigns{u"/*", u"*/"};
constexpr QStringView scriptSign = u"//";

qsizetype blankAt(QStringView text, qsizetype at, qsizetype end)
{
    return at < end && text[at] == u' ' ? 1 : 0;
}

/// One pair of signs around all lines, or away from them.
LineChange toggledPair(QStringView text, LineSpan span, TextSelection selection, const Signs &signs)
{
    const qsizetype start = firstInk(text, span);
    qsizetype end = span.end;
    while (end > start && (isBlank(text[end - 1]) || text[end - 1] == u'\r' || text[end - 1] == u'\n'))
        --end;
    SpanEdits edits(text, span, selection);
    const QStringView ink = text.mid(start, end - start);
    if (ink.size() >= signs.open.size() + signs.close.size() && ink.startsWith(signs.open) &&
        ink.endsWith(signs.close)) {
        const qsizetype inside = start + signs.open.size();
        const qsizetype foot = end - signs.close.size();
        const qsizetype headBlank = blankAt(text, inside, foot);
        const qsizetype footBlank = foot > inside + headBlank && text[foot - 1] == u' ' ? 1 : 0;
        edits.edit(start, signs.open.size() + headBlank, {});
        edits.edit(foot - footBlank, signs.close.size() + footBlank, {});
    } else {
        edits.edit(start, 0, signs.open.toString() + u' ', selection.length == 0);
        edits.edit(end, 0, u' ' + signs.close.toString(), false);
    }
    return edits.change();
}

/// The sign goes in front of each line, at the column of the one that stands furthest to the left.
LineChange toggledLines(QStringView text, LineSpan span, TextSelection selection)
{
    const QList<LineSpan> lines = linesWithInk(text, span);
    const auto isCommented = [text](const LineSpan &line) {
        return text.mid(firstInk(text, line), line.end - firstInk(text, line)).startsWith(scriptSign);
    };
    const bool away = std::all_of(lines.begin(), lines.end(), isCommented);
    qsizetype column = lines.isEmpty() ? 0 : text.size();
    for (const LineSpan &line : lines)
        column = std::min(column, firstInk(text, line) - line.start);
    SpanEdits edits(text, span, selection);
    for (const LineSpan &line : lines) {
        const qsizetype ink = firstInk(text, line);
        if (away)
            edits.edit(ink, scriptSign.size() + blankAt(text, ink + scriptSign.size(), line.end), {});
        else
            edits.edit(line.start + column, 0, QStringLiteral("// "), selection.length == 0);
    }
    return edits.change();
}

/// Whether the position lies inside the element, between its start tag and its end tag.
bool isInside(QStringView text, qsizetype position, QStringView name)
{
    const qsizetype open = text.first(position).lastIndexOf(QString(u'<' + name.toString()), -1, Qt::CaseInsensitive);
    if (open < 0)
        return false;
    const qsizetype behindName = open + 1 + name.size();
    if (behindName < text.size() && text[behindName].isLetterOrNumber())
        return false;
    const qsizetype bracket = text.indexOf(u'>', behindName);
    if (bracket < 0 || bracket >= position)
        return false;
    const qsizetype close = text.indexOf(QString(QStringLiteral("</") + name.toString()), bracket, Qt::CaseInsensitive);
    return close < 0 || close >= position;
}
} // namespace

LineChange movedLines(QStringView text, TextSelection selection, bool up)
{
    const LineSpan span = linesOf(text, selection);
    const QString lines = text.mid(span.start, span.end - span.start).toString();
    const QString lineBreak = QStringLiteral("\r\n");
    if (up) {
        if (span.start == 0)
            return {{}, selection};
        const qsizetype other = lineStart(text, span.start - BreakLength);
        const QString before = text.mid(other, span.start - BreakLength - other).toString();
        return {TextReplacement{other, span.end - other, lines + lineBreak + before},
                {selection.start - before.size() - BreakLength, selection.length}};
    }
    if (span.end == text.size())
        return {{}, selection};
    const qsizetype next = span.end + BreakLength;
    const qsizetype end = lineEnd(text, next);
    const QString behind = text.mid(next, end - next).toString();
    const qsizetype start = selection.start + behind.size() + BreakLength;
    const qsizetype size = text.size(); // a selection with the last break, which there is none of any more
    return {TextReplacement{span.start, end - span.start, behind + lineBreak + lines},
            {start, std::min(selection.length, size - start)}};
}

LineChange doubledLines(QStringView text, TextSelection selection)
{
    const LineSpan span = linesOf(text, selection);
    const QString copy = QStringLiteral("\r\n") + text.mid(span.start, span.end - span.start).toString();
    const qsizetype start = selection.start + copy.size();
    return {TextReplacement{span.end, 0, copy}, {start, std::min(selection.length, text.size() + copy.size() - start)}};
}

LineChange removedLines(QStringView text, TextSelection selection)
{
    const LineSpan span = linesOf(text, selection);
    const qsizetype column = selection.start - span.start;
    if (span.end < text.size()) {
        const qsizetype next = span.end + BreakLength;
        const qsizetype width = lineEnd(text, next) - next;
        return {TextReplacement{span.start, next - span.start, QString()}, {span.start + std::min(column, width), 0}};
    }
    if (span.start == 0)
        return {text.isEmpty() ? std::nullopt : std::optional(TextReplacement{0, text.size(), QString()}), {0, 0}};
    const qsizetype foot = span.start - BreakLength;
    const qsizetype head = lineStart(text, foot);
    return {TextReplacement{foot, text.size() - foot, QString()}, {head + std::min(column, foot - head), 0}};
}

CommentSigns commentSignsAt(QStringView text, qsizetype position, const QString &path)
{
    const QString ending = GetFileExtension(path).toLower();
    if (ending == u"css")
        return CommentSigns::Css;
    if (ending == u"js" || ending == u"mjs")
        return CommentSigns::Script;
    if (isInside(text, position, u"script"))
        return CommentSigns::Script;
    return isInside(text, position, u"style") ? CommentSigns::Css : CommentSigns::Html;
}

LineChange toggledComment(QStringView text, TextSelection selection, const QString &path)
{
    const LineSpan span = linesOf(text, selection);
    const QList<LineSpan> lines = linesWithInk(text, span);
    if (lines.isEmpty())
        return {{}, selection};
    switch (commentSignsAt(text, firstInk(text, lines.constFirst()), path)) {
    case CommentSigns::Script:
        return toggledLines(text, span, selection);
    case CommentSigns::Css:
        return toggledPair(text, span, selection, cssSigns);
    case CommentSigns::Html:
        break;
    }
    return toggledPair(text, span, selection, htmlSigns);
}
