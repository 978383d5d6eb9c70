#include "document/linkPass.h"

#include "common/linkPrefixes.h"
#include "document/textSearch.h"

#include <algorithm>

namespace
{
bool endsLink(QChar c)
{
    return c == u'"' || c == u'\r' || c == u'<' || c == u' ';
}

// Where the link that starts at the 1-based position ends: at its terminator, or at the text's last character, which is
// not part of it either.
qsizetype endOfLink(QStringView text, qsizetype position)
{
    const auto *const end = std::find_if(text.begin() + position, text.end(), endsLink);
    return std::min<qsizetype>(end - text.begin() + 1, text.size());
}
} // namespace

bool LinkPass::advance(bool cancelled)
{
    if (m_started && (cancelled || !ColourLinkPrefix()))
        toNextPrefix();
    m_started = true;
    return toNextPlace();
}

// Colours the next link of the prefix; false if there is none.
bool LinkPass::ColourLinkPrefix()
{
    const qsizetype position = FindInLCase(m_text, LinkPrefixes[m_prefix], m_position);
    if (position == 0)
        return false;
    const qsizetype end = endOfLink(m_text, position);
    m_paints.add(position - 1, end - position, LinkPaint);
    m_position = end + 1;
    return true;
}

// A prefix is looked for as long as the text has two characters left; each look is a place.
bool LinkPass::toNextPlace()
{
    while (m_prefix < LinkPrefixes.size() && m_position > m_text.size() - 1)
        toNextPrefix();
    return m_prefix < LinkPrefixes.size();
}

void LinkPass::toNextPrefix()
{
    ++m_prefix;
    m_position = 1;
}
