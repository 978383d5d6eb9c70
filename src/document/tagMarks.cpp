#include "document/tagMarks.h"

#include "common/textSurface.h"
#include "document/tagPairs.h"
#include "services/timer.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr qsizetype largestAtOnce = 50'000; // characters, whose tags are found in less than a millisecond
constexpr qsizetype reach = 4096;           // characters in which the start of the caret's tag is looked for
constexpr int restFirst = 150;              // milliseconds

/// Whether a tag may stand at a position, by what is near it: so a caret in plain text looks for none.
bool mayBeAtTag(const TextSurface &surface, qsizetype position)
{
    const qsizetype start = std::max(position - reach, qsizetype(0));
    const QString near = surface.textPart(start, position - start + 1);
    const qsizetype open = near.lastIndexOf(u'<');
    if (open < 0)
        return false;
    const QStringView between = QStringView(near).mid(open, position - start - open);
    const qsizetype close = between.indexOf(u'>');
    const bool ended = close >= 0 && close + 1 < between.size();
    return !ended || between.contains(u'"') || between.contains(u'\''); // which may hold a ">"
}
} // namespace

TagMarks::TagMarks(TextSurface &surface, TimerSource &timers, std::function<bool()> shown)
    : m_surface(surface),
      m_shown(std::move(shown)),
      m_timer(std::make_unique<Timer>(timers, QStringLiteral("tmrTagMarks"), [this] { look(); }))
{
    m_timer->setInterval(restFirst);
}

TagMarks::~TagMarks() = default;

/// A key moves the caret and changes the text, and is told as both: the second time, all is done.
void TagMarks::textChanged()
{
    const bool done = m_isNewText && m_surface.SelStart() == m_caret && m_surface.textLength() == m_length;
    m_isNewText = false;
    if (!done)
        follow();
    m_isNewText = false;
}

void TagMarks::follow()
{
    m_isNewText = m_surface.textLength() != std::exchange(m_length, m_surface.textLength());
    m_caret = m_surface.SelStart();
    m_timer->setEnabled(false);
    const bool later = m_surface.textLength() > largestAtOnce;
    show(!later);
    m_timer->setEnabled(later && m_shown());
}

void TagMarks::look()
{
    m_timer->setEnabled(false);
    show(true);
}

void TagMarks::show(bool withTags)
{
    QList<MarkedRange> marks;
    const qsizetype caret = m_surface.SelStart();
    if (m_shown() && m_surface.SelLength() == 0) {
        marks.append({caret, 0, MarkKind::CurrentLine});
        const bool looks = withTags && mayBeAtTag(m_surface, caret);
        if (const auto pair = looks ? tagPairAt(m_surface.Text(), caret) : std::nullopt) {
            for (const FoundTag &tag : {pair->tag, pair->partner})
                marks.append({tag.start, tag.end - tag.start, MarkKind::Pair});
        }
    }
    m_surface.setMarkedRanges(MarkOwner::Tags, marks);
}
