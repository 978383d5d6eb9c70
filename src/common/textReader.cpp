#include "common/textReader.h"

#include <algorithm>

QChar TextReader::at(qsizetype position)
{
    if (position < m_start || position >= m_start + m_piece.size())
        read(position);
    return m_piece[position - m_start];
}

QString TextReader::mid(qsizetype position, qsizetype length) const
{
    return length < 1 ? QString() : m_surface.textPart(position - 1, length);
}

/// Takes the piece that ends, or starts, at the position, as the reading goes backwards or forwards. Pieces grow, so
/// that a long way takes few of them.
void TextReader::read(qsizetype position)
{
    constexpr qsizetype largest = 65536;
    const bool first = m_piece.isEmpty();
    qsizetype start = position;
    if (first)
        start = position - m_size / 2;
    else if (position < m_start)
        start = position - m_size + 1;
    m_start = std::max<qsizetype>(start, 1);
    m_piece = m_surface.textPart(m_start - 1, m_size);
    m_size = std::min(m_size * 4, largest);
}
