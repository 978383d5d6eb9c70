#include "document/colouringPass.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/frmWrite.h"
#include "document/pageColours.h"
#include "document/slicedColouring.h"
#include "services/services.h"
#include "services/timer.h"
#include "services/yielder.h"
#include "surface/editSurface.h"
#include "widgets/screenPointer.h"

ColouringPass::ColouringPass(frmWrite &form, ProgramContext &context)
    : m_context(context),
      m_form(&form),
      m_edit(dynamic_cast<EditSurface *>(&form.txtEdit())),
      m_scanner(form.txtEdit().Text(), context.mainWindow->colouring)
{
}

void ColouringPass::run()
{
    begin();
    const auto watch = QObject::connect(m_edit, &EditSurface::Change, m_edit, [this] { m_textChanged = true; });
    const bool stillThere = scan();
    QObject::disconnect(watch);
    if (stillThere) {
        if (!m_textChanged)
            paint();
        end();
    } else {
        m_context.screenPointer.setMousePointer(PointerShape::Default);
        m_context.mainWindow->SetStatusReady();
    }
}

void ColouringPass::fillTree()
{
    if (!fillsTree())
        return;
    m_context.mainWindow->clearStructureTree();
    if (!m_context.mainWindow->structurePageShown() || m_edit->textLength() >= UncolouredLength)
        return;
    m_scanner.setStructureShown(true);
    while (m_scanner.advance()) {
    }
    addNewNodes();
}

void ColouringPass::begin()
{
    m_context.mainWindow->SetStatusText(
        QStringLiteral("Updating document's syntax colouring... [press any key to cancel]"));
    m_form->CancelColouring = false;
    if (fillsTree())
        m_context.mainWindow->clearStructureTree();
    m_context.screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    m_edit->setPaintingHeld(true);
    if (!m_context.state.habits.HabitFocus && m_context.mainWindow->activeDocument() == m_form)
        m_edit->SetFocus();
    m_edit->setHideSelection(true);
    m_edit->setLocked(true);
    m_form->ColouringActive = true;
    m_wasDirty = m_form->boolDirty;
    if (const auto interval = refreshInterval(m_context.mainWindow->colouring.ColourCodeUpdateTime))
        m_form->refreshTimer().setInterval(*interval);
    if (m_edit->textLength() < UncolouredLength) {
        m_selection = {m_edit->SelStart(), m_edit->SelLength()};
        m_topLine = m_edit->firstVisibleLine();
    }
}

bool ColouringPass::fillsTree() const
{
    return !m_context.state.habits.HabitStructure;
}

bool ColouringPass::scan()
{
    m_context.services.yielder.beginPass();
    m_scanner.setStructureShown(fillsTree() && m_context.mainWindow->structurePageShown());
    while (m_scanner.advance()) {
        addNewNodes();
        m_context.services.yielder.yield();
        if (!m_form || !m_form->isLoaded())
            return false;
        if (m_textChanged)
            return true;
        if (m_form->CancelColouring)
            m_scanner.cancel();
        m_scanner.setStructureShown(fillsTree() && m_context.mainWindow->structurePageShown());
    }
    addNewNodes();
    return true;
}

void ColouringPass::addNewNodes()
{
    const auto &nodes = m_scanner.structure().nodes();
    for (; m_nodesShown < nodes.size(); ++m_nodesShown) {
        const StructureNode &node = nodes[m_nodesShown];
        m_context.mainWindow->addStructureNode(node.parent, node.key(), node.text, node.image);
    }
}

void ColouringPass::paint()
{
    m_edit->setFormats(formats());
    restoreView();
}

QList<FormatRange> ColouringPass::formats() const
{
    const ColouringOptions &options = m_context.mainWindow->colouring;
    if (m_edit->textLength() < UncolouredLength && !m_form->CancelColouring)
        if (const auto asPage = pageFormats(m_edit->Text(), options, m_context.state.habits))
            return *asPage;
    return m_scanner.paints().formats(options);
}

void ColouringPass::restoreView()
{
    // A key that stopped the pass may have moved the caret. The caret of a document too large for colours goes to its
    // start at each pass.
    if (m_edit->SelStart() != m_selection.start || m_edit->SelLength() != m_selection.length) {
        m_edit->setSelStart(m_selection.start);
        m_edit->setSelLength(m_selection.length);
    }
    if (m_edit->textLength() < UncolouredLength && m_edit->firstVisibleLine() != m_topLine)
        m_edit->scrollToLine(m_topLine);
}

void ColouringPass::end()
{
    m_form->refreshTimer().setEnabled(m_textChanged);
    m_form->boolDirty = m_wasDirty || m_textChanged;
    m_edit->setHideSelection(false);
    m_edit->setPaintingHeld(false);
    m_context.screenPointer.setMousePointer(PointerShape::Default);
    m_edit->setLocked(false);
    m_context.mainWindow->SetStatusReady();
    m_form->ColouringActive = false;
}
