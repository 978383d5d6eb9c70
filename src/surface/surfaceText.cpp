#include "surface/surfaceText.h"

#include "common/text.h"

#include <algorithm>

void SurfaceText::load(const QString &text)
{
    if (m_lines.reset(text)) {
        m_text.reset(text);
        return;
    }
    const QString whole = withCrLf(text);
    m_lines.reset(whole);
    m_text.reset(whole);
}

void SurfaceText::replace(qsizetype position, qsizetype removed, QStringView inserted)
{
    m_lines.replace(position, removed, inserted);
    m_text.replace(position, removed, inserted);
}

qsizetype SurfaceText::snapped(qsizetype position) const
{
    return std::clamp(position, qsizetype(0), lineEnd(lineAt(position)));
}
