// The main window's bars: showing and hiding them, the status bar, the document selector and the lists.
#include "common/programState.h"
#include "frame/frmMdi.h"

#include "document/structureTree.h"
#include "files/modRecentFiles.h"
#include "frame/documentStatus.h"
#include "frame/documentSwitch.h"
#include "frame/frmMdiBands.h"
#include "frame/frmMdiCommands.h"
#include "frame/frmMdiPane.h"
#include "insertion/modFontTags.h"
#include "internet/modViewInBrowser.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "widgets/controlName.h"
#include "widgets/controlWatch.h"
#include "widgets/coolBar.h"
#include "widgets/nodeTree.h"
#include "widgets/programIcon.h"
#include "widgets/sidePane.h"
#include "widgets/tabStrip.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QStatusBar>
#include <QToolBar>

namespace
{
/// The bars that the View menu shows and hides, with the settings that remember it.
struct Bar {
    const char *entry;
    const settings::Key &setting;
};
const QString InsertBarFirst = QStringLiteral("tbrInsert(Table)");
/// From the mouse to the corner of what drops down, 70 and 650 twips: a little to the right and, where the client area
/// begins as far under the window's edge as the menu bar is high, right under the button.
constexpr QPoint InsertBarDrop(70 / 15, 650 / 15);

const Bar bars[] = {{"mnuShowbar", settings::AddrBarVisible},
                    {"mnuShowPrjWindow", settings::CodeWinVis},
                    {"mnuShowCodeBar", settings::CodeBarVis},
                    {"mnuShowDocSelBar", settings::DocSelBarVis},
                    {"mnuShowStatusBar", settings::StatusBarVis}};
} // namespace

bool frmMdi::isBarShown(const QString &entry) const
{
    // The entry's check mark does not tell: it has turned already when its command runs.
    if (entry == u"mnuShowbar")
        return cbrMain->bandVisible(bands::Address);
    if (entry == u"mnuShowCodeBar")
        return cbrMain->bandVisible(bands::Code);
    if (entry == u"mnuShowPrjWindow")
        return !m_pane->picProject()->isHidden();
    return entry == u"mnuShowDocSelBar" ? !picDocSelector->isHidden() : !StatusBar1->isHidden();
}

void frmMdi::toggleBar(const QString &entry)
{
    showBar(entry, !isBarShown(entry));
}

/// Shows or hides without a note in the settings.
void frmMdi::setBarShown(const QString &entry, bool shown)
{
    if (entry == u"mnuShowbar")
        cbrMain->setBandVisible(bands::Address, shown);
    else if (entry == u"mnuShowCodeBar")
        cbrMain->setBandVisible(bands::Code, shown);
    else if (entry == u"mnuShowPrjWindow")
        m_pane->picProject()->setVisible(shown);
    else if (entry == u"mnuShowDocSelBar")
        picDocSelector->setVisible(shown);
    else if (entry == u"mnuShowStatusBar")
        StatusBar1->setVisible(shown);
    m_commands->action(entry)->setChecked(shown);
    // What is hidden hands the keyboard on, but keeps it where nothing else would take it.
    if (QWidget *focused = QApplication::focusWidget(); focused && !focused->isVisible())
        focused->clearFocus();
}

void frmMdi::showBar(const QString &entry, bool shown)
{
    setBarShown(entry, shown);
    for (const Bar &bar : bars)
        if (entry == QLatin1String(bar.entry))
            settings::writeBoolean(services().settings, bar.setting, shown);
}

void frmMdi::showTaskManagerPane()
{
    if (m_pane->picProject()->isHidden())
        showBar(QStringLiteral("mnuShowPrjWindow"), true);
}

void frmMdi::showProjectPage(bool shown)
{
    m_pane->showPage(shown ? TaskManagerPane::ProjectTab : TaskManagerPane::CodesTab);
}

void frmMdi::clearAddresses()
{
    cboAddress->clear();
}

void frmMdi::SetStatusText(const QString &text)
{
    if (!m_message)
        return;
    m_message->setText(text);
    m_message->setToolTip(text);
}

void frmMdi::SetStatusReady()
{
    SetStatusText(m_keptStatus.isEmpty() ? QStringLiteral("Ready") : m_keptStatus);
}

void frmMdi::keepStatus(const QString &text)
{
    m_keptStatus = text;
    SetStatusReady();
}

QString frmMdi::statusText() const
{
    return m_message ? m_message->text() : QString();
}

void frmMdi::enableResetBar()
{
    tmrResetBar->setEnabled(true);
}

void frmMdi::showFileFormat(const QString &text)
{
    m_documentStatus->showFormat(text);
}

void frmMdi::showRecentFiles(const QStringList &captions)
{
    bool any = false;
    for (int slot = 1; slot <= RecentFileCount; ++slot) {
        QAction *entry = m_commands->recentFiles()[slot - 1];
        const QString caption = captions.value(slot - 1);
        entry->setText(QString(caption).replace(u'&', QStringLiteral("&&")));
        entry->setVisible(!caption.isEmpty());
        any = any || !caption.isEmpty();
    }
    m_commands->action(QStringLiteral("mnuDashUpdates"))->setVisible(any);
}

void frmMdi::addDocumentTab(const QString &key, const QString &caption)
{
    const bool comesBack = context().state.habits.HabitScripts && key == m_removedTab.key;
    const int place = comesBack ? m_removedTab.place : tabDocSel->count();
    if (tabDocSel->addKeyedTab(key, caption, programIcon(QStringLiteral("file-code")), place))
        tabDocSel->setTabToolTip(*tabDocSel->find(key), caption);
    m_documentSwitch->list();
}

void frmMdi::removeDocumentTab(const QString &key)
{
    if (const std::optional<int> place = tabDocSel->find(key))
        m_removedTab = {.key = key, .place = *place};
    tabDocSel->removeKeyedTab(key);
    m_documentSwitch->list();
}

void frmMdi::selectDocumentTab(const QString &key)
{
    tabDocSel->selectKey(key);
}

void frmMdi::showDocumentTabs(bool shown)
{
    tabDocSel->setVisible(shown);
}

void frmMdi::showDocumentSelector(bool shown)
{
    picDocSelector->setVisible(shown);
}

void frmMdi::tabDocSel_Click()
{
    const QString key = tabDocSel->selectedKey();
    for (Document *document : openDocuments())
        if (document->DocKeyDescription == key) {
            document->activate();
            return;
        }
}

void frmMdi::clearStructureTree()
{
    m_pane->treStructure->clearNodes();
}

bool frmMdi::structurePageShown() const
{
    return !m_pane->picProject()->isHidden() && m_pane->page() == TaskManagerPane::StructureTab;
}

void frmMdi::addStructureNode(qsizetype parent, const QString &key, const QString &text, const QString &image)
{
    m_pane->treStructure->addNode({.text = text, .key = key, .imageKey = image, .parent = static_cast<int>(parent)});
}

void frmMdi::showStructure(const QList<TreeNode> &nodes)
{
    m_pane->treStructure->showNodes(nodes);
}

void frmMdi::treStructure_NodeClick(int node)
{
    Document *document = activeDocument();
    if (!document)
        return;
    const TextSelection selection = selectionOfNode(m_pane->treStructure->nodeAt(node).key);
    document->txtEdit().setSelStart(selection.start);
    document->txtEdit().setSelLength(selection.length);
}

QWidget *frmMdi::insertBarButton() const
{
    return m_commands->toolBar(QStringLiteral("tbrInsert"))->widgetForAction(m_commands->action(InsertBarFirst));
}

void frmMdi::followInsertBar()
{
    QWidget *button = insertBarButton();
    m_insertBarMouse.reset();
    new ControlWatch(button, QEvent::MouseButtonPress, [this, button](const QEvent &event) {
        const QPoint place = static_cast<const QMouseEvent &>(event).position().toPoint();
        m_insertBarMouse = button->mapTo(frame()->centralWidget(), place);
        return false;
    });
}

QPoint frmMdi::insertBarDrop() const
{
    const QWidget *button = insertBarButton();
    const QPoint middle = button->mapTo(frame()->centralWidget(), button->rect().center());
    return window()->mapToGlobal(m_insertBarMouse.value_or(middle)) + InsertBarDrop;
}

void frmMdi::setInsertBarPressed(bool pressed)
{
    QAction *first = m_commands->action(InsertBarFirst);
    first->setCheckable(pressed); // for a user, it is a button like the others
    first->setChecked(pressed);
}

void frmMdi::PopupMenu(const QString &name, const QPoint &position)
{
    if (name == u"mnuPopup")
        m_commands->enableSelectionEntries();
    if (QMenu *menu = m_commands->menu(name))
        menu->popup(position);
}

bool frmMdi::MoveToNextPane(Qt::Key key, FocusPlace from)
{
    if (key != Qt::Key_F6)
        return false;
    if (from == FocusPlace::Source) {
        if (m_pane->picProject()->isHidden())
            return false;
        m_pane->pageControl()->setFocus(Qt::TabFocusReason);
        return true;
    }
    Document *document = activeDocument();
    if (document)
        document->txtEdit().SetFocus();
    return document != nullptr;
}

void frmMdi::cmdGo_Click()
{
    if (cboAddress->currentText().isEmpty())
        return;
    RecordAddress(context(), *cboAddress);
    OpenInBrowser(context(), cboAddress->currentText());
}

void frmMdi::cboFont_Click()
{
    m_fontTyped = false;
    ApplyFontFace(context(), cboFont->currentText());
}

void frmMdi::cboFont_LostFocus()
{
    if (m_fontTyped)
        cboFont_Click();
}

void frmMdi::cboSize_Click()
{
    ApplyPointSize(context(), cboSize->currentText());
}

void frmMdi::cboFontSize_Click()
{
    ApplyHeading(context(), headingLevel(cboFontSize->currentText()));
}
