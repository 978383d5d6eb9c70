#include "common/patchedText.h"

#include <algorithm>

namespace
{
/// How much unchanged text a patch may take in to reach the next edit, rather than being settled first.
constexpr qsizetype reach = 4096;
/// How large a patch grows, for edits in a large one move what stands behind them.
constexpr qsizetype largestPatch = 65536;

QString spliced(QStringView text, qsizetype start, qsizetype covered, QStringView patch)
{
    QString result(text.size() - covered + patch.size(), Qt::Uninitialized);
    QChar *out = std::copy(text.begin(), text.begin() + start, result.data());
    out = std::copy(patch.begin(), patch.end(), out);
    std::copy(text.begin() + start + covered, text.end(), out);
    return result;
}
} // namespace

void PatchedText::reset(const QString &text)
{
    m_text = text;
    m_patch.clear();
    m_start = m_covered = 0;
}

void PatchedText::replace(qsizetype position, qsizetype removed, QStringView inserted)
{
    if (isFar(position, removed) || m_patch.size() > largestPatch)
        settle();
    if (m_covered == 0 && m_patch.isEmpty())
        m_start = position;
    const qsizetype before = std::max(m_start - position, qsizetype(0));
    m_patch.prepend(QStringView(m_text).mid(m_start - before, before));
    m_start -= before;
    m_covered += before;
    const qsizetype behind = std::max(position + removed - (m_start + m_patch.size()), qsizetype(0));
    m_patch += QStringView(m_text).mid(m_start + m_covered, behind);
    m_covered += behind;
    m_patch.replace(position - m_start, removed, inserted.data(), inserted.size());
}

const QString &PatchedText::text() const
{
    settle();
    return m_text;
}

QString PatchedText::mid(qsizetype position, qsizetype length) const
{
    const qsizetype patchEnd = m_start + m_patch.size();
    const qsizetype end = position + std::min(length, this->length() - position);
    const auto clampedPart = [&](QStringView part, qsizetype offset) {
        const qsizetype from = std::clamp(position - offset, qsizetype(0), part.size());
        return part.mid(from, std::clamp(end - offset, from, part.size()) - from);
    };
    QString result = clampedPart(QStringView(m_text).first(m_start), 0).toString();
    result += clampedPart(m_patch, m_start);
    result += clampedPart(QStringView(m_text).mid(m_start + m_covered), patchEnd);
    return result;
}

bool PatchedText::isFar(qsizetype position, qsizetype removed) const
{
    const qsizetype patchEnd = m_start + m_patch.size();
    return position > patchEnd + reach || position + removed < m_start - reach;
}

void PatchedText::settle() const
{
    if (m_covered == 0 && m_patch.isEmpty())
        return;
    // A string that somebody else holds too would be copied by replace before it is moved.
    if (m_text.isDetached())
        m_text.replace(m_start, m_covered, m_patch.constData(), m_patch.size());
    else
        m_text = spliced(m_text, m_start, m_covered, m_patch);
    m_patch.clear();
    m_start = m_covered = 0;
}
