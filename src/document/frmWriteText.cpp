// What a document window does to its whole text: colouring, history, indentation and the optimiser.
#include "common/programState.h"
#include "document/codeAssistant.h"
#include "document/colouringPass.h"
#include "document/frmWrite.h"
#include "document/indentation.h"
#include "document/lineIndent.h"
#include "document/syntaxOptimiser.h"
#include "services/services.h"
#include "services/timer.h"
#include "services/yielder.h"
#include "surface/editSurface.h"
#include "widgets/screenPointer.h"

#include <QPointer>

namespace
{
constexpr int DefaultPointer = 0;
constexpr int ArrowHourglassPointer = 13;
} // namespace

void frmWrite::RecolourDocument()
{
    if (ColouringActive) // a pass brought on by what runs inside a pass would find the window held already
        return;
    ColouringPass(*this, context()).run();
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

void frmWrite::take(const TextSelection &selection)
{
    m_history.UndoRedoChange({m_edit->Text(), selection});
}

void frmWrite::UndoRedoChange()
{
    take({m_edit->SelStart(), m_edit->SelLength()});
}

void frmWrite::Undo()
{
    if (const auto snapshot = m_history.Undo())
        restore(*snapshot);
}

void frmWrite::Redo()
{
    if (const auto snapshot = m_history.Redo())
        restore(*snapshot);
}

void frmWrite::restore(const UndoSnapshot &snapshot)
{
    m_edit->setText(snapshot.text);
    m_edit->setSelStart(snapshot.selection.start);
    m_edit->setSelLength(snapshot.selection.length);
}

Document::UndoRedo frmWrite::IsUndoRedoPossible() const
{
    const UndoHistory::Possible possible = m_history.IsUndoRedoPossible();
    return {possible.undo, possible.redo};
}

void frmWrite::IndentText(bool indent)
{
    context().state.habits.HabitKeys ? indentLines(indent) : indentBySteps(indent);
}

void frmWrite::apply(const LineChange &change)
{
    if (change.replacement) {
        m_edit->setSelStart(change.replacement->start);
        m_edit->setSelLength(change.replacement->length);
        m_edit->setSelText(change.replacement->text);
    }
    m_edit->setSelStart(change.selection.start);
    m_edit->setSelLength(change.selection.length);
}

/// By whole lines; without a selection, one step goes in at the caret.
void frmWrite::indentLines(bool indent)
{
    const IndentStyle style = indentStyle(services().settings);
    const TextSelection selection{m_edit->SelStart(), m_edit->SelLength()};
    if (!indent) {
        apply(outdentedLines(m_edit->Text(), selection, style));
    } else if (selection.length > 0) {
        apply(indentedLines(m_edit->Text(), selection, style));
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
        take(*result.recorded);
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
    context().screenPointer.setMousePointer(ArrowHourglassPointer);
    m_edit->setPaintingHeld(true);
    m_edit->setHideSelection(true);
    m_edit->setLocked(true);
    const QPointer<frmWrite> self(this);
    services().yielder.beginPass();
    SyntaxOptimiser optimiser(m_edit->Text(), m_history);
    while (optimiser.advance()) {
        services().yielder.yield();
        if (!self || !isLoaded()) {
            context().screenPointer.setMousePointer(DefaultPointer);
            return;
        }
    }
    if (optimiser.hasChanged()) {
        m_edit->setText(optimiser.text());
        boolDirty = true;
    }
    ColouringActive = false;
    m_edit->setSelStart(saved.start);
    m_edit->setSelLength(saved.length);
    m_edit->setHideSelection(false);
    m_edit->setPaintingHeld(false);
    context().screenPointer.setMousePointer(DefaultPointer);
    UndoRedoChange();
    m_edit->setLocked(false);
    ExternalInitiateColourCodeAndDocStructure();
}
