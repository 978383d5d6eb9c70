// What a document window does to its whole text: colouring, history, indentation and the optimiser.
#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/unsavedText.h"
#include "document/codeAssistant.h"
#include "document/colouringPass.h"
#include "document/documentHistory.h"
#include "document/frmWrite.h"
#include "document/handCommands.h"
#include "document/indentation.h"
#include "document/lineIndent.h"
#include "document/slicedColouring.h"
#include "document/syntaxOptimiser.h"
#include "services/services.h"
#include "services/timer.h"
#include "services/yielder.h"
#include "surface/editSurface.h"
#include "widgets/screenPointer.h"

#include <QPointer>

void frmWrite::RecolourDocument()
{
    if (ColouringActive) // a pass brought on by what runs inside a pass would find the window held already
        return;
    context().state.habits.HabitColouring ? colourInSlices() : ColouringPass(*this, context()).run();
}

void frmWrite::colourInSlices()
{
    if (!m_edit)
        return;
    if (const auto interval = refreshInterval(frmMdi().colouring.ColourCodeUpdateTime))
        tmrRefresh->setInterval(*interval);
    tmrRefresh->setEnabled(false);
    if (frmMdi().activeDocument() == this)
        ColouringPass(*this, context()).fillTree();
    if (!m_slices)
        m_slices = new SlicedColouring(*m_edit, context());
    m_slices->begin();
}

void frmWrite::ExternalCallColourCode()
{
    if (m_assistant->isListShown()) // the pass would take the focus from it
        return;
    const QPointer<frmWrite> self(this);
    RecolourDocument();
    if (self)
        UpdateLineInformation();
}

void frmWrite::ExternalInitiateColourCodeAndDocStructure()
{
    RecolourDocument();
}

void frmWrite::tmrRefresh_Timer()
{
    ExternalCallColourCode();
}

/// The margin itself is drawn with the text; what is kept here is what others ask for.
void frmWrite::UpdateLineInformation()
{
    if (!m_edit || ColouringActive)
        return;
    AvailableDocumentLines = m_edit->lineCount();
    FirstVisibleLine = m_edit->firstVisibleLine();
}

/// Another kind of history knows nothing of what the one before kept.
void frmWrite::followHabits()
{
    const bool edits = context().state.habits.HabitUndo;
    if (m_history && edits == m_keepsEdits)
        return;
    m_keepsEdits = edits;
    m_history = edits ? editStepHistory(*m_edit, services().clock, !boolDirty) : snapshotHistory(*m_edit);
    m_history->take(selection());
}

TextSelection frmWrite::selection() const
{
    return {m_edit->SelStart(), m_edit->SelLength()};
}

void frmWrite::beginHistory()
{
    m_history->begin(!boolDirty);
}

void frmWrite::UndoRedoChange()
{
    m_history->take(selection());
}

void frmWrite::UndoRedoStep()
{
    m_history->takeStep(selection());
}

void frmWrite::Undo()
{
    noteClean(m_history->undo(!boolDirty));
}

void frmWrite::Redo()
{
    noteClean(m_history->redo(!boolDirty));
}

/// A text that is the saved one again has nothing to be kept.
void frmWrite::noteClean(std::optional<bool> clean)
{
    if (!clean)
        return;
    boolDirty = !*clean;
    if (*clean && context().unsavedText)
        context().unsavedText->forget(*this);
}

Document::UndoRedo frmWrite::IsUndoRedoPossible() const
{
    return m_history->possible();
}

int frmWrite::UndoPosition() const
{
    return m_history->position();
}

void frmWrite::IndentText(bool indent)
{
    context().state.habits.HabitKeys ? indentLines(indent) : indentBySteps(indent);
}

/// By whole lines; without a selection, one step goes in at the caret.
void frmWrite::indentLines(bool indent)
{
    const IndentStyle style = indentStyle(services().settings);
    const TextSelection selection{m_edit->SelStart(), m_edit->SelLength()};
    if (!indent) {
        applyChange(*m_edit, outdentedLines(m_edit->Text(), selection, style));
    } else if (selection.length > 0) {
        applyChange(*m_edit, indentedLines(m_edit->Text(), selection, style));
    } else {
        m_edit->setSelText(indentStep(style));
    }
    UndoRedoChange();
    m_edit->SetFocus();
}

void frmWrite::indentBySteps(bool indent)
{
    const IndentResult result = ::IndentText(m_edit->Text(), {m_edit->SelStart(), m_edit->SelLength()}, indent);
    if (result.replacement) {
        m_edit->setSelStart(result.replacement->start);
        m_edit->setSelLength(result.replacement->length);
        m_edit->setSelText(result.replacement->text);
    }
    if (result.recorded)
        m_history->take(*result.recorded);
    m_edit->setSelStart(result.selection.start);
    m_edit->setSelLength(result.selection.length);
    if (result.takesFocus)
        m_edit->SetFocus();
}

void frmWrite::OptimiseSyntax()
{
    const TextSelection saved{m_edit->SelStart(), m_edit->SelLength()};
    CancelColouring = false;
    ColouringActive = true;
    context().screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    m_edit->setPaintingHeld(true);
    m_edit->setHideSelection(true);
    m_edit->setLocked(true);
    const QPointer<frmWrite> self(this);
    services().yielder.beginPass();
    SyntaxOptimiser optimiser(m_edit->Text(), m_history->snapshots());
    while (optimiser.advance()) {
        services().yielder.yield();
        if (!self || !isLoaded()) {
            context().screenPointer.setMousePointer(PointerShape::Default);
            return;
        }
    }
    if (optimiser.hasChanged()) {
        m_edit->setText(optimiser.text());
        m_history->changed(!boolDirty);
        boolDirty = true;
    }
    ColouringActive = false;
    m_edit->setSelStart(saved.start);
    m_edit->setSelLength(saved.length);
    m_edit->setHideSelection(false);
    m_edit->setPaintingHeld(false);
    context().screenPointer.setMousePointer(PointerShape::Default);
    UndoRedoChange();
    m_edit->setLocked(false);
    ExternalInitiateColourCodeAndDocStructure();
}
