// What the main window's commands do. Each handler is short: it opens a form, calls the active document or a module.
#include "frame/frmMdiCommands.h"

#include "common/fileCommands.h"
#include "document/modBrowserControl.h"
#include "document/modDocument.h"
#include "extensions/frmWizards.h"
#include "extensions/modExternalPrograms.h"
#include "files/modPrinting.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "frame/frmMdi.h"
#include "internet/modViewInBrowser.h"
#include "project/modProjectFileCtrl.h"
#include "services/helpViewer.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/mdiArrange.h"

#include <QAction>
#include <QWhatsThis>

namespace
{
const QString MakerSite = QStringLiteral(TAGWRIGHTER_MAKER_SITE);
} // namespace

Document *MainCommands::document() const
{
    return m_form.activeDocument();
}

void MainCommands::mnuOpen_Click()
{
    if (m_context.files)
        m_context.files->ShowOpenDialog();
}

void MainCommands::mnuClose_Click()
{
    if (Document *active = document())
        active->unload();
}

void MainCommands::mnuSave_Click()
{
    if (m_context.files && document())
        m_context.files->SaveDocument(false);
}

void MainCommands::mnuSaveAs_Click()
{
    if (m_context.files && document())
        m_context.files->SaveDocumentAs(false, QString());
}

void MainCommands::mnuSaveAll_Click()
{
    if (m_context.files)
        m_context.files->SaveAll();
}

void MainCommands::mnuViewPage_Click()
{
    PreviewActiveDocument(m_context);
}

void MainCommands::mnuWizards_Click()
{
    m_context.forms.showModal<frmWizards>();
}

void MainCommands::mnuUpload_Click()
{
    RunPublishingProgram(m_context);
}

void MainCommands::mnuPrint_Click()
{
    PrintDocument(m_context);
    focusEditor();
}

void MainCommands::openRecentFile(int index)
{
    if (m_context.files)
        m_context.files->OpenRecentFile(index);
}

void MainCommands::mnuExit_Click()
{
    m_form.Unload();
}

void MainCommands::newBlankDocument()
{
    if (!NewBlankDocument(m_context)) // the active document is another one then
        return;
    FillBlankDocument(m_context);
    if (Document *active = document()) {
        active->DocSelUpdate(QString());
        active->txtEdit().SetFocus();
    }
}

void MainCommands::mnuShowbar_Click()
{
    m_form.toggleBar(QStringLiteral("mnuShowbar"));
}

void MainCommands::mnuShowPrjWindow_Click()
{
    m_form.toggleBar(QStringLiteral("mnuShowPrjWindow"));
}

void MainCommands::mnuShowCodeBar_Click()
{
    m_form.toggleBar(QStringLiteral("mnuShowCodeBar"));
}

void MainCommands::mnuShowDocSelBar_Click()
{
    m_form.toggleBar(QStringLiteral("mnuShowDocSelBar"));
}

void MainCommands::mnuShowStatusBar_Click()
{
    m_form.toggleBar(QStringLiteral("mnuShowStatusBar"));
}

void MainCommands::mnuHideAddressBar_Click()
{
    m_form.showBar(QStringLiteral("mnuShowbar"), false);
}

void MainCommands::mnuSplitEditingWindows_Click()
{
    const bool split = !settings::isOn(m_context.services.settings, settings::SplitEditPreview);
    settings::writeBoolean(m_context.services.settings, settings::SplitEditPreview, split);
    action(QStringLiteral("mnuSplitEditingWindows"))->setChecked(split);
    for (Document *each : m_form.openDocuments()) {
        each->SplitEditingPreviewWindows();
        each->RepositionEditingandPreviewWindows();
    }
    focusEditor();
}

void MainCommands::stopBrowser()
{
    Stop(m_context);
    focusEditor();
}

void MainCommands::refreshBrowser()
{
    Refresh(m_context);
    focusEditor();
}

void MainCommands::browserForward()
{
    GoForward(m_context);
    focusEditor();
}

void MainCommands::browserBack()
{
    GoBack(m_context);
    focusEditor();
}

void MainCommands::focusEditor()
{
    if (Document *active = document())
        active->txtEdit().SetFocus();
}

void MainCommands::mnuWordWrap_Click()
{
    ApplyWordWrapSetting(m_context, !m_form.WordWrap);
}

void MainCommands::mnuOpenProject_Click()
{
    m_form.project().OpenProjectDialog();
    focusEditor();
}

void MainCommands::addEditorFile()
{
    m_form.project().AddEditorFile();
}

void MainCommands::addOtherFile()
{
    m_form.project().AddOtherFile();
}

void MainCommands::removeEditorFile()
{
    m_form.project().RemoveEditorFile();
}

void MainCommands::removeOtherFile()
{
    m_form.project().RemoveOtherFile();
}

void MainCommands::saveProject()
{
    m_form.project().SaveProject();
}

void MainCommands::mnuCloseProject_Click()
{
    m_form.project().AskCloseProject();
}

void MainCommands::mnuWinTile_Click()
{
    arrangeWindows(*m_context.forms.mdiArea(), MdiArrangement::TileHorizontally);
}

void MainCommands::mnuWinTileVert_Click()
{
    arrangeWindows(*m_context.forms.mdiArea(), MdiArrangement::TileVertically);
}

void MainCommands::mnuWinCascade_Click()
{
    arrangeWindows(*m_context.forms.mdiArea(), MdiArrangement::Cascade);
}

void MainCommands::mnuWinArrangeIcons_Click()
{
    arrangeWindows(*m_context.forms.mdiArea(), MdiArrangement::ArrangeIcons);
}

void MainCommands::mnuUpdate_Click()
{
    RunUpdater(m_context);
}

void MainCommands::mnuHelpContents_Click()
{
    m_context.services.help.contents();
}

void MainCommands::mnuHelpIndex_Click()
{
    m_context.services.help.index();
}

void MainCommands::mnuWhatsThisMode_Click()
{
    QWhatsThis::enterWhatsThisMode();
}

void MainCommands::mnuHarblineWebsite_Click()
{
    OpenLink(m_context, MakerSite);
}

void MainCommands::mnuCustomerBenefits_Click()
{
    OpenHelpTopic(m_context, QStringLiteral("::/topics/customers.html"));
}

void MainCommands::mnuHtmLangReg_Click()
{
    OpenHelpTopic(m_context, QStringLiteral("::/topics/reference/ReferenceIndex.htm"));
}

void MainCommands::mnuTutorial_Click()
{
    OpenHelpTopic(m_context, QStringLiteral("::/topics/tutorial/TutorialIndex.htm"));
}

void MainCommands::openBenefitsPage()
{
    OpenLink(m_context, MakerSite + QStringLiteral("/customers/index.html"));
}

void MainCommands::openLibraryPage()
{
    OpenLink(m_context, MakerSite + QStringLiteral("/onlinelibrary/index.html"));
}
