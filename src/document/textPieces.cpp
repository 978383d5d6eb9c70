#include "document/textPieces.h"

#include <QHash>
#include <algorithm>

namespace
{
constexpr qsizetype LongestPiece = 16384;

/// The length of the piece that a text begins with: up to a place that the 32 characters in front of it mark, which one
/// place of some four thousand is.
qsizetype pieceLength(QStringView text)
{
    const qsizetype most = std::min(text.size(), LongestPiece);
    quint32 mark = 0;
    for (qsizetype i = 0; i < most; ++i) {
        mark = (mark << 1) + text[i].unicode() * 0x9E3779B1U;
        if (mark >> 20 == 0)
            return i + 1;
    }
    return most;
}

bool startsWith(QStringView text, QStringView piece)
{
    return text.size() >= piece.size() && text.first(piece.size()) == piece;
}

bool endsWith(QStringView text, QStringView piece)
{
    return text.size() >= piece.size() && text.last(piece.size()) == piece;
}
} // namespace

TextPieces::TextPieces(const QString &text, const TextPieces &similar)
{
    const std::vector<QString> &known = similar.m_pieces;
    QStringView left = text;
    auto front = known.begin();
    while (front != known.end() && startsWith(left, *front))
        left = left.sliced((front++)->size());
    auto back = known.end();
    while (back != front && endsWith(left, *(back - 1)))
        left.chop((--back)->size());

    m_pieces.assign(known.begin(), front);
    QHash<QStringView, QString> between;
    for (auto piece = front; piece != back; ++piece)
        between.insert(*piece, *piece);
    while (!left.isEmpty()) {
        const QStringView piece = left.first(pieceLength(left));
        const QString there = between.value(piece);
        m_pieces.push_back(there.isNull() ? piece.size() == text.size() ? text : piece.toString() : there);
        if (there.isNull())
            between.insert(m_pieces.back(), m_pieces.back());
        left = left.sliced(piece.size());
    }
    m_pieces.insert(m_pieces.end(), back, known.end());
}

QString TextPieces::text() const
{
    if (m_pieces.size() == 1)
        return m_pieces.front();
    qsizetype size = 0;
    for (const QString &piece : m_pieces)
        size += piece.size();
    QString whole(size, Qt::Uninitialized);
    QChar *out = whole.data();
    for (const QString &piece : m_pieces)
        out = std::copy(piece.begin(), piece.end(), out);
    return whole;
}

bool TextPieces::holds(QStringView text) const
{
    for (const QString &piece : m_pieces) {
        if (!startsWith(text, piece))
            return false;
        text = text.sliced(piece.size());
    }
    return text.isEmpty();
}
