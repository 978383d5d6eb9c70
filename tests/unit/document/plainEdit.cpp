#include "unit/document/plainEdit.h"

#include <algorithm>

namespace
{
bool standsAt(const QString &text, const QString &what, int index)
{
    for (int i = 0; i < what.size(); ++i) {
        if (index + i >= text.size() || text[index + i] != what[i])
            return false;
    }
    return true;
}
} // namespace

int reference::find(const QString &text, const QString &what, int start)
{
    if (start < 1)
        throw FailedStep();
    for (int position = start; position <= text.size(); ++position) {
        if (standsAt(text, what, position - 1))
            return position;
    }
    return 0;
}

int reference::findBack(const QString &text, const QString &what, int start)
{
    if (start < 1)
        throw FailedStep();
    if (start > text.size())
        return 0;
    for (int position = start - len(what) + 1; position >= 1; --position) {
        if (standsAt(text, what, position - 1))
            return position;
    }
    return 0;
}

QString reference::mid(const QString &text, int start, int length)
{
    if (start < 1 || length < 0)
        throw FailedStep();
    QString result;
    for (int position = start; position < start + length && position <= text.size(); ++position)
        result += text[position - 1];
    return result;
}

QString reference::lcase(const QString &text)
{
    QString result;
    for (const QChar c : text)
        result += c.toLower();
    return result;
}

PlainEdit::PlainEdit(const QString &text, const CharacterFormat &format)
    : m_text(text), m_formats(static_cast<std::size_t>(text.size()), format)
{
}

void PlainEdit::setSelStart(int start)
{
    if (start < 0)
        throw FailedStep();
    m_start = std::min(start, reference::len(m_text));
    m_length = 0;
}

void PlainEdit::setSelLength(int length)
{
    if (length < 0)
        throw FailedStep();
    m_length = std::min(length, reference::len(m_text) - m_start);
}

void PlainEdit::setSelText(const QString &text)
{
    m_text.replace(m_start, m_length, text);
    m_formats.assign(static_cast<std::size_t>(m_text.size()), CharacterFormat());
    m_start += reference::len(text);
    m_length = 0;
}

void PlainEdit::setSelColor(ColourValue colour)
{
    for (int i = m_start; i < m_start + m_length; ++i)
        m_formats[static_cast<std::size_t>(i)].colour = colour;
}

void PlainEdit::setSelBold(bool bold)
{
    for (int i = m_start; i < m_start + m_length; ++i)
        m_formats[static_cast<std::size_t>(i)].bold = bold;
}

void PlainEdit::setSelUnderline(bool underline)
{
    for (int i = m_start; i < m_start + m_length; ++i)
        m_formats[static_cast<std::size_t>(i)].underline = underline;
}
