#pragma once

#include "common/document.h"
#include "document/editHistory.h"
#include "document/undoHistory.h"

#include <functional>
#include <memory>

class Clock;

/// What a document window keeps of its text's past, in one of two ways: the snapshots that it is told to take, or each
/// edit as it happens.
class DocumentHistory
{
public:
    DocumentHistory() = default;
    DocumentHistory(const DocumentHistory &) = delete;
    DocumentHistory &operator=(const DocumentHistory &) = delete;
    virtual ~DocumentHistory() = default;

    /// The text as it stands is where the history begins.
    virtual void begin(bool /*clean*/) {}
    /// Takes the text with that selection, or ends the step that is being made.
    virtual void take(const TextSelection &selection) = 0;
    /// The same where the history stands, unless the text is there already.
    virtual void takeStep(const TextSelection &selection) { take(selection); }
    /// A key that gives or takes a character is about to change the text; false: it has had its time.
    virtual void setTyping(bool) {}
    /// The next change to be told is one of two places that go together.
    virtual void setLinked(bool) {}
    /// The text was changed. `clean`: it was the saved one before.
    virtual void changed(bool /*clean*/) {}
    virtual void selectionMoved() {}
    /// A key goes down: what it does is another step, unless both are typing.
    virtual void keyDown() {}
    /// The same as take, at a key that ends a word.
    virtual void takeAtKey(const TextSelection & /*selection*/) {}

    /// Write the step back into the document; nothing at the ends. `clean`: the text is the saved one. What comes back
    /// tells whether it is so afterwards; nothing where that is not known.
    virtual std::optional<bool> undo(bool clean) = 0;
    virtual std::optional<bool> redo(bool clean) = 0;
    virtual Document::UndoRedo possible() const = 0;
    virtual int position() const = 0; ///< from 1
    /// Where a long pass puts the states between its start and its end.
    virtual UndoHistory &snapshots() = 0;
};

/// Snapshots, taken where the window says so.
std::unique_ptr<DocumentHistory> snapshotHistory(TextSurface &edit);
/// Each edit, from the text as it stands.
std::unique_ptr<DocumentHistory> editStepHistory(TextSurface &edit, Clock &clock, bool clean);
