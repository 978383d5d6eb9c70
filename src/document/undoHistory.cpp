#include "document/undoHistory.h"

#include <algorithm>

namespace
{
/// Texts of up to so many characters are not worth taking apart: thirty of them are four megabytes.
constexpr qsizetype SmallText = 65536;
} // namespace

bool UndoHistory::Text::is(const QString &text) const
{
    if (whole.isEmpty())
        return pieces.holds(text);
    return (whole.constData() == text.constData() && whole.size() == text.size()) || whole == text;
}

/// An equal text from another source is kept once only.
UndoHistory::Entry UndoHistory::entryOf(const UndoSnapshot &snapshot, const Entry &beside) const
{
    if (snapshot.text.isEmpty())
        return {nullptr, snapshot.selection};
    if (beside.text && beside.text->is(snapshot.text))
        return {beside.text, snapshot.selection};
    return {std::make_shared<Text>(Text{snapshot.text, {}}), snapshot.selection};
}

void UndoHistory::UndoRedoChange(const UndoSnapshot &snapshot)
{
    auto *const newest = m_entries.begin() + 1;
    const Entry entry = entryOf(snapshot, *newest);
    std::move_backward(newest, m_entries.end() - 1, m_entries.end());
    *newest = entry;
    keepWhole(entry.text);
    if (m_position != 1)
        --m_position;
}

void UndoHistory::insertHere(const UndoSnapshot &snapshot)
{
    Entry &standing = m_entries.at(static_cast<std::size_t>(m_position));
    const Entry entry = entryOf(snapshot, standing);
    if (entry.text == standing.text) {
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
    *here = entry;
    keepWhole(entry.text);
}

UndoHistory::Possible UndoHistory::IsUndoRedoPossible() const
{
    const auto isThere = [this](int position) {
        return m_entries.at(static_cast<std::size_t>(position)).text != nullptr;
    };
    return {isThere(m_position), isThere(m_position - 1)};
}

std::optional<UndoSnapshot> UndoHistory::moveTo(int position)
{
    if (position > Oldest || !m_entries.at(static_cast<std::size_t>(position)).text)
        return std::nullopt;
    m_position = position;
    const Entry &entry = m_entries.at(static_cast<std::size_t>(position));
    keepWhole(entry.text);
    return UndoSnapshot{entry.text->whole, entry.selection};
}

/// Keeps that text whole, if it is one, and the large one before in pieces.
void UndoHistory::keepWhole(const std::shared_ptr<Text> &text)
{
    if (!text || text == m_whole)
        return;
    if (m_whole && m_whole->whole.size() > SmallText) {
        if (m_whole->pieces.isEmpty() && m_whole.use_count() > 1) // else the history has lost it
            m_whole->pieces = TextPieces(m_whole->whole, piecesBeside(m_whole));
        m_whole->whole.clear();
    }
    if (text->whole.isEmpty())
        text->whole = text->pieces.text();
    m_whole = text;
}

/// The pieces of the nearest text to that one in the history, which is the likeliest to be similar.
TextPieces UndoHistory::piecesBeside(const std::shared_ptr<Text> &text) const
{
    const auto *const place =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &e) { return e.text == text; });
    const auto isCut = [](const Entry &entry) { return entry.text && !entry.text->pieces.isEmpty(); };
    const auto *const older = std::find_if(place, m_entries.end(), isCut);
    if (older != m_entries.end())
        return older->text->pieces;
    const auto *const newer = std::find_if(m_entries.begin(), place, isCut);
    return newer != place ? newer->text->pieces : TextPieces();
}
