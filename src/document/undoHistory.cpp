#include "document/undoHistory.h"

#include <algorithm>

void UndoHistory::UndoRedoChange(const UndoSnapshot &snapshot)
{
    auto *const newest = m_entries.begin() + 1;
    std::move_backward(newest, m_entries.end() - 1, m_entries.end());
    *newest = snapshot;
    const QString &before = (newest + 1)->text;
    if (newest->text == before) // an equal text from another source is kept once only
        newest->text = before;
    if (m_position != 1)
        --m_position;
}

void UndoHistory::insertHere(const UndoSnapshot &snapshot)
{
    UndoSnapshot &standing = m_entries.at(static_cast<std::size_t>(m_position));
    if (standing.text == snapshot.text) {
        standing.selection = snapshot.selection;
        return;
    }
    auto *const newest = m_entries.begin() + 1;
    if (m_position == Oldest) { // the newest gives way, for the one stood at has to stay
        std::move(newest + 1, m_entries.end(), newest);
        --m_position;
    }
    auto *const here = m_entries.begin() + m_position;
    std::move_backward(here, m_entries.end() - 1, m_entries.end());
    *here = snapshot;
}

UndoHistory::Possible UndoHistory::IsUndoRedoPossible() const
{
    const auto isThere = [this](int position) {
        return !m_entries.at(static_cast<std::size_t>(position)).text.isEmpty();
    };
    return {isThere(m_position), isThere(m_position - 1)};
}

std::optional<UndoSnapshot> UndoHistory::moveTo(int position)
{
    if (position > Oldest || m_entries.at(static_cast<std::size_t>(position)).text.isEmpty())
        return std::nullopt;
    m_position = position;
    return m_entries.at(static_cast<std::size_t>(position));
}
