#pragma once

#include "common/textSurface.h"

/// Reads single characters of a large text that lie near one another. The text is looked at in pieces, never as a
/// whole; what was read is stale once the text changes.
class TextReader
{
public:
    explicit TextReader(const TextSurface &surface) : m_surface(surface), m_length(surface.textLength()) {}

    qsizetype length() const { return m_length; }
    /// The character at a position counted from 1, which must be in the text.
    QChar at(qsizetype position);
    /// `length` characters from a position counted from 1, fewer where the text ends before; nothing for a length below
    /// 1.
    QString mid(qsizetype position, qsizetype length) const;

private:
    void read(qsizetype position);

    const TextSurface &m_surface;
    qsizetype m_length;
    QString m_piece;
    qsizetype m_start = 1; ///< of the piece, counted from 1
    qsizetype m_size = 256;
};
