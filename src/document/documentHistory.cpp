#include "document/documentHistory.h"

#include "common/surfaceSelection.h"
#include "services/clock.h"

#include <QObject>

#include <utility>

namespace
{
class SnapshotHistory final : public DocumentHistory
{
public:
    explicit SnapshotHistory(TextSurface &edit) : m_edit(edit) {}

    void take(const TextSelection &selection) override { m_history.UndoRedoChange({m_edit.Text(), selection}); }
    void takeAtKey(const TextSelection &selection) override { take(selection); }
    void takeStep(const TextSelection &selection) override { m_history.insertHere({m_edit.Text(), selection}); }
    std::optional<bool> undo(bool) override
    {
        restore(m_history.Undo());
        return {};
    }
    std::optional<bool> redo(bool) override
    {
        restore(m_history.Redo());
        return {};
    }
    Document::UndoRedo possible() const override
    {
        const UndoHistory::Possible possible = m_history.IsUndoRedoPossible();
        return {possible.undo, possible.redo};
    }
    int position() const override { return m_history.UndoPosition(); }
    UndoHistory &snapshots() override { return m_history; }

private:
    void restore(const std::optional<UndoSnapshot> &snapshot)
    {
        if (!snapshot)
            return;
        m_edit.setText(snapshot->text);
        m_edit.setSelStart(snapshot->selection.start);
        m_edit.setSelLength(snapshot->selection.length);
    }

    TextSurface &m_edit;
    UndoHistory m_history;
};

class EditStepHistory final : public DocumentHistory
{
public:
    EditStepHistory(TextSurface &edit, Clock &clock, bool clean) : m_edit(edit), m_clock(clock)
    {
        EditStepHistory::begin(clean);
    }

    void begin(bool clean) override { m_history.begin(m_edit.Text(), selectionOf(m_edit), clean); }
    void take(const TextSelection &) override
    {
        if (!m_edit.Locked())
            m_history.endStep();
    }
    void keyDown() override
    {
        m_typing = false;
        settle();
    }
    void setTyping(bool typing) override { m_typing = typing; }
    void setLinked(bool linked) override { m_linked = linked; }
    void changed(bool clean) override;
    void selectionMoved() override;
    std::optional<bool> undo(bool clean) override
    {
        catchUp(clean);
        return restore(m_history.undo());
    }
    std::optional<bool> redo(bool clean) override
    {
        catchUp(clean);
        return restore(m_history.redo());
    }
    Document::UndoRedo possible() const override { return {m_history.canUndo(), m_history.canRedo()}; }
    int position() const override { return m_history.position(); }
    UndoHistory &snapshots() override { return m_between; }

private:
    bool isUnchanged() const;
    void noteClean(bool clean);
    void catchUp(bool clean);
    void settle();
    void settleSoon();
    std::optional<bool> restore(const std::optional<EditHistory::Restored> &step);

    TextSurface &m_edit;
    Clock &m_clock;
    EditHistory m_history;
    UndoHistory m_between; ///< a pass is one step: nobody asks for what was in between
    QObject m_turn;        ///< takes the step's end at the end of the event with it
    bool m_typing = false;
    bool m_linked = false;
    bool m_restoring = false;
    bool m_wasLocked = false; ///< at the last change
    bool m_settling = false;  ///< at the end of the event
};

void EditStepHistory::noteClean(bool clean)
{
    if (clean && !m_history.isAtSaved()) {
        m_history.endStep();
        m_history.noteSaved();
    }
}

/// What is not typed and belongs together comes within one event, or while the user cannot change the text.
void EditStepHistory::changed(bool clean)
{
    if (m_restoring)
        return;
    noteClean(clean);
    const bool locked = m_edit.Locked();
    if (std::exchange(m_wasLocked, locked) && !locked)
        m_history.settle();
    const bool typed = m_typing && !locked;
    const EditHistory::Kind kind = !typed     ? EditHistory::Kind::Other
                                   : m_linked ? EditHistory::Kind::Linked
                                              : EditHistory::Kind::Typed;
    m_history.changed(m_edit.Text(), selectionOf(m_edit), kind, m_clock.now().toMSecsSinceEpoch());
    settleSoon();
}

void EditStepHistory::settleSoon()
{
    if (std::exchange(m_settling, true))
        return;
    QMetaObject::invokeMethod(
        &m_turn,
        [this] {
            m_settling = false;
            settle();
        },
        Qt::QueuedConnection);
}

void EditStepHistory::settle()
{
    if (!m_edit.Locked())
        m_history.settle();
}

/// A change that nobody told of would spoil every step before it.
void EditStepHistory::catchUp(bool clean)
{
    if (!isUnchanged())
        changed(clean);
    else
        noteClean(clean);
}

bool EditStepHistory::isUnchanged() const
{
    const QString text = m_edit.Text();
    return text.constData() == m_history.text().constData() || text == m_history.text();
}

/// The surface tells of the caret that a change moves before it tells of the change.
void EditStepHistory::selectionMoved()
{
    if (!m_restoring && isUnchanged())
        m_history.selectionMoved(selectionOf(m_edit));
}

std::optional<bool> EditStepHistory::restore(const std::optional<EditHistory::Restored> &step)
{
    if (!step)
        return {};
    m_restoring = true;
    m_edit.setSelStart(step->start);
    m_edit.setSelLength(step->length);
    m_edit.setSelText(step->text);
    m_edit.setSelStart(step->selection.start);
    m_edit.setSelLength(step->selection.length);
    m_restoring = false;
    return m_history.isAtSaved();
}
} // namespace

std::unique_ptr<DocumentHistory> snapshotHistory(TextSurface &edit)
{
    return std::make_unique<SnapshotHistory>(edit);
}

std::unique_ptr<DocumentHistory> editStepHistory(TextSurface &edit, Clock &clock, bool clean)
{
    return std::make_unique<EditStepHistory>(edit, clock, clean);
}
