#include "document/lineChange.h"

#include <algorithm>

namespace
{
qsizetype shiftOf(qsizetype position, qsizetype at, qsizetype taken, qsizetype put, bool carries)
{
    if (position < at || (position == at && !carries))
        return 0;
    return put - std::min(taken, position - at);
}
} // namespace

qsizetype lineStart(QStringView text, qsizetype position)
{
    return text.first(position).lastIndexOf(u'\n') + 1;
}

qsizetype lineEnd(QStringView text, qsizetype position)
{
    const qsizetype end = text.indexOf(u'\r', position);
    return end < 0 ? text.size() : end;
}

LineSpan linesOf(QStringView text, TextSelection selection)
{
    const qsizetype start = lineStart(text, selection.start);
    const qsizetype last = selection.start + selection.length;
    if (selection.length > 0 && last == lineStart(text, last))
        return {start, last - 2};
    return {start, lineEnd(text, last)};
}

SpanEdits::SpanEdits(QStringView text, LineSpan span, TextSelection selection)
    : m_text(text), m_span(span), m_selection(selection), m_done(span.start)
{
}

void SpanEdits::edit(qsizetype at, qsizetype taken, QStringView put, bool carries)
{
    m_result += m_text.mid(m_done, at - m_done);
    m_result += put;
    m_done = at + taken;
    m_changed = m_changed || taken > 0 || !put.isEmpty();
    m_fromShift += shiftOf(m_selection.start, at, taken, put.size(), carries);
    m_toShift +=
        shiftOf(m_selection.start + m_selection.length, at, taken, put.size(), carries || m_selection.length > 0);
}

LineChange SpanEdits::change()
{
    if (!m_changed)
        return {{}, m_selection};
    m_result += m_text.mid(m_done, m_span.end - m_done);
    return {TextReplacement{m_span.start, m_span.end - m_span.start, m_result},
            {m_selection.start + m_fromShift, m_selection.length + m_toShift - m_fromShift}};
}
