#include "document/editHistory.h"

#include "common/commonText.h"
#include "document/markupCharacters.h"

#include <algorithm>
#include <cstdlib>

namespace
{
/// Whether the position parts the two characters of a line break.
bool partsBreak(QStringView text, qsizetype position)
{
    return position > 0 && position < text.size() && text[position - 1] == u'\r' && text[position] == u'\n';
}

struct Common {
    qsizetype start = 0;
    qsizetype end = 0;
};

/// What the two texts share at both ends, at most `most` characters in front; a line break is shared whole.
Common shared(QStringView a, QStringView b, qsizetype most)
{
    Common common;
    common.start = commonStart(a, b, most);
    if (partsBreak(a, common.start) || partsBreak(b, common.start))
        --common.start;
    common.end = commonEnd(a, b, std::min(a.size(), b.size()) - common.start);
    if (partsBreak(a, a.size() - common.end) || partsBreak(b, b.size() - common.end))
        --common.end;
    return common;
}
} // namespace

/// Where a repeated character makes more than one place possible, the one at the caret is taken.
EditHistory::Edit EditHistory::difference(const QString &from, const QString &to, TextSelection before,
                                          TextSelection after)
{
    Common common = shared(from, to, from.size());
    const Common atCaret = shared(from, to, before.start);
    if (atCaret.start + atCaret.end >= common.start + common.end)
        common = atCaret;
    return {common.start, from.mid(common.start, from.size() - common.start - common.end),
            to.mid(common.start, to.size() - common.start - common.end), before, after};
}

void EditHistory::begin(const QString &text, TextSelection selection, bool clean)
{
    m_steps.clear();
    m_position = 0;
    m_saved = clean ? std::optional<std::size_t>(0) : std::nullopt;
    m_text = text;
    m_selection = selection;
    endStep();
}

void EditHistory::changed(const QString &text, TextSelection selection, Kind kind, qint64 now)
{
    const Edit edit = difference(m_text, text, m_selection, selection);
    if (edit.removed.isEmpty() && edit.added.isEmpty())
        return;
    if (joins(edit, kind, now)) {
        m_steps.back() = difference(m_stepBase, text, m_steps.back().before, selection);
    } else {
        m_stepBase = m_text;
        push(edit);
    }
    m_text = text;
    m_selection = selection;
    m_open = true;
    m_following = true;
    m_kind = kind;
    m_last = edit;
    m_lastTime = now;
}

void EditHistory::push(const Edit &edit)
{
    m_steps.resize(m_position);
    if (m_saved && *m_saved > m_position)
        m_saved.reset();
    m_steps.push_back(edit);
    ++m_position;
    if (m_steps.size() <= MostSteps)
        return;
    m_steps.pop_front();
    --m_position;
    if (m_saved)
        m_saved = *m_saved > 0 ? std::optional(*m_saved - 1) : std::nullopt;
}

/// Whether a change still belongs to the open step. A word begins at the blank in front of it.
bool EditHistory::joins(const Edit &edit, Kind kind, qint64 now) const
{
    if (!m_open || kind != m_kind || canRedo() || isAtSaved())
        return false;
    if (kind == Kind::Other)
        return true;
    if (now - m_lastTime >= Pause || now < m_lastTime)
        return false;
    if (kind == Kind::Linked)
        return std::abs(edit.start - m_last.start) <= 1;
    const bool added = edit.removed.isEmpty() && edit.added.size() == 1;
    const bool removed = edit.added.isEmpty() && edit.removed.size() == 1;
    if (added)
        return m_last.added.size() == 1 && edit.start == m_last.start + 1 &&
               !(isBlank(edit.added[0]) && !isBlank(m_last.added[0]));
    if (removed && m_last.added.isEmpty() && m_last.removed.size() == 1) {
        const bool touches = edit.start == m_last.start || edit.start + 1 == m_last.start;
        return touches && !(isBlank(edit.removed[0]) && !isBlank(m_last.removed[0]));
    }
    return false;
}

void EditHistory::selectionMoved(TextSelection selection)
{
    if (m_following && m_position > 0)
        m_steps[m_position - 1].after = selection;
    else if (selection != m_selection && m_kind != Kind::Other)
        m_open = false; // what is typed elsewhere is another step, even if the caret comes back
    m_selection = selection;
}

void EditHistory::noteSaved()
{
    m_saved = m_position;
}

void EditHistory::settle()
{
    m_following = false;
    if (m_kind == Kind::Other)
        endStep();
}

void EditHistory::endStep()
{
    m_open = false;
    m_following = false;
    m_stepBase.clear();
}

std::optional<EditHistory::Restored> EditHistory::undo()
{
    if (!canUndo())
        return std::nullopt;
    endStep();
    const Edit &edit = m_steps[--m_position];
    m_text.replace(edit.start, edit.added.size(), edit.removed);
    m_selection = edit.before;
    return Restored{edit.start, edit.added.size(), edit.removed, edit.before};
}

std::optional<EditHistory::Restored> EditHistory::redo()
{
    if (!canRedo())
        return std::nullopt;
    endStep();
    const Edit &edit = m_steps[m_position++];
    m_text.replace(edit.start, edit.removed.size(), edit.added);
    m_selection = edit.after;
    return Restored{edit.start, edit.removed.size(), edit.added, edit.after};
}
