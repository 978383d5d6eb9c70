#pragma once

#include "common/textSelection.h"
#include "document/textPieces.h"

#include <QString>
#include <array>
#include <memory>
#include <optional>

/// The whole of a document at one moment. An empty text stands for "no snapshot".
struct UndoSnapshot {
    QString text;
    TextSelection selection;
};

/// The history of one document: whole snapshots, of which the first is the newest.
///
/// It is no linear history. A snapshot taken after an undo is put in front of those that could still be redone, which
/// stay, and the position moves one entry towards the newest although the entries move one towards the oldest. A
/// snapshot of a large text costs memory only where it differs from the one beside it: whole stands only the one that
/// was taken or given back last, which the document shares for as long as it does not change.
class UndoHistory
{
public:
    void UndoRedoChange(const UndoSnapshot &snapshot);
    /// Puts the snapshot in front of the entry that is stood at, so that one Undo leads from the one to the other; what
    /// could be redone stays in front of both. An entry with the same text only gets the selection.
    void insertHere(const UndoSnapshot &snapshot);

    /// What is to be written back, text first, then the selection; nothing at the end of the history.
    std::optional<UndoSnapshot> Undo() { return moveTo(m_position + 1); }
    std::optional<UndoSnapshot> Redo() { return moveTo(m_position - 1); }

    struct Possible {
        bool undo = false; ///< by the entry stood at, not by the one that Undo writes back: may be true in vain
        bool redo = false;
        bool operator==(const Possible &) const = default;
    };
    Possible IsUndoRedoPossible() const;

    /// The entry that the document stands at, from 1.
    int UndoPosition() const { return m_position; }

private:
    static constexpr int Oldest = 30;

    /// A text that is not empty: whole, in pieces, or both.
    struct Text {
        QString whole;
        TextPieces pieces;
        bool is(const QString &text) const;
    };
    struct Entry {
        std::shared_ptr<Text> text; ///< nothing where there is no snapshot; entries with the same text share it
        TextSelection selection;
    };
    using Entries = std::array<Entry, Oldest + 1>;

    Entry entryOf(const UndoSnapshot &snapshot, const Entry &beside) const;
    std::optional<UndoSnapshot> moveTo(int position);
    void keepWhole(const std::shared_ptr<Text> &text);
    TextPieces piecesBeside(const std::shared_ptr<Text> &text) const;

    // Entry 0 is never written: above the newest there is nothing to redo.
    Entries m_entries;
    std::shared_ptr<Text> m_whole; ///< the one large text that is kept whole
    int m_position = 1;
};
