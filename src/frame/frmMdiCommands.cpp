// What the main window's commands do. Each handler is short: it opens a form, calls the active document or a module.
#include "frame/frmMdiCommands.h"

#include "common/fileCommands.h"
#include "document/colourSquares.h"
#include "document/elementSteps.h"
#include "document/handCommands.h"
#include "document/modBrowserControl.h"
#include "document/modClipboard.h"
#include "document/modDocument.h"
#include "document/pictureHands.h"
#include "extensions/frmWizards.h"
#include "extensions/modExternalPrograms.h"
#include "extensions/modWizards.h"
#include "files/modPrinting.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "frame/frmMdi.h"
#include "insertion/modCode.h"
#include "insertion/modColourProcesses.h"
#include "insertion/modExcludePath.h"
#include "insertion/writtenMarkup.h"
#include "internet/modViewInBrowser.h"
#include "project/modProjectFileCtrl.h"
#include "services/commonDialogs.h"
#include "services/helpViewer.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/workingFolder.h"
#include "texttools/frmFind.h"
#include "widgets/mdiArrange.h"

#include <QAction>
#include <QWhatsThis>

namespace
{
const QString MakerSite = QStringLiteral(TAGWRIGHTER_MAKER_SITE);

MessageBox optimiseBox()
{
    return {.title = QStringLiteral("Code Optimisation for Readability"),
            .text = QStringLiteral(
                "This function will make live changes to your entire document. You may not be able to undo these "
                "changes. You should always save your work and make a backup before using this function.\r\n\r\n"
                "Do you wish to continue now?\r\n\r\n"
                " Click Yes to begin the code optimisation.\r\n"
                " Click No to cancel the code optimisation so that you can save your work."),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}
} // namespace

Document *MainCommands::document() const
{
    return m_form.activeDocument();
}

void MainCommands::wrapSelection(const CommandAction &action)
{
    WrapSelection(m_context, QLatin1String(action.open), QLatin1String(action.close));
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

void MainCommands::mnuUndo_Click()
{
    if (Document *active = document())
        active->Undo();
}

void MainCommands::mnuRedo_Click()
{
    if (Document *active = document())
        active->Redo();
}

void MainCommands::mnuCut_Click()
{
    CutToClipboard(m_context);
}

void MainCommands::mnuCopy_Click()
{
    CopyToClipboard(m_context);
}

void MainCommands::mnuPaste_Click()
{
    PasteToDocument(m_context);
}

void MainCommands::mnuSelectAll_Click()
{
    SelectAllInActiveControl(m_context);
}

void MainCommands::deleteSelection()
{
    if (Document *active = document())
        active->txtEdit().setSelText(QString());
}

void MainCommands::mnuReplace_Click()
{
    auto &find = m_context.forms.get<frmFind>();
    find.Show();
    find.SetFindReplace();
}

void MainCommands::mnuFindNext_Click()
{
    if (document())
        m_context.forms.get<frmFind>().FindAgain(false);
}

void MainCommands::mnuFindPrevious_Click()
{
    if (document())
        m_context.forms.get<frmFind>().FindAgain(true);
}

void MainCommands::mnuPreviousTag_Click()
{
    if (Document *active = document()) {
        SelectPreviousElement(active->txtEdit());
        active->txtEdit().SetFocus();
    }
}

void MainCommands::mnuNextTag_Click()
{
    if (Document *active = document()) {
        SelectNextElement(active->txtEdit());
        active->txtEdit().SetFocus();
    }
}

void MainCommands::mnuToggleComment_Click()
{
    ToggleComment(m_context);
}

void MainCommands::mnuMoveLinesUp_Click()
{
    MoveLines(m_context, true);
}

void MainCommands::mnuMoveLinesDown_Click()
{
    MoveLines(m_context, false);
}

void MainCommands::mnuDoubleLines_Click()
{
    DoubleLines(m_context);
}

void MainCommands::mnuRemoveLines_Click()
{
    RemoveLines(m_context);
}

void MainCommands::mnuGoToPartner_Click()
{
    GoToPartner(m_context);
}

void MainCommands::mnuCloseElement_Click()
{
    CloseElement(m_context);
}

void MainCommands::mnuRenameElement_Click()
{
    SelectElementName(m_context);
}

void MainCommands::mnuChangeColour_Click()
{
    ChangeColourAtCaret(m_context);
}

void MainCommands::mnuExpandAbbreviation_Click()
{
    if (Document *active = document())
        ExpandAbbreviation(m_context, *active);
}

void MainCommands::mnuPastePicture_Click()
{
    PastePicture(m_context);
}

void MainCommands::mnuFollowLink_Click()
{
    FollowLinkAtCaret(m_context);
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

void MainCommands::mnuInsFramesPage_Click()
{
    RunFramesWizard(m_context);
}

void MainCommands::mnuInsExternalCSS_Click()
{
    const auto cdlInsExternalCSS = m_context.services.commonDialogs.showOpen(
        {.DialogTitle = {},
         .Filter = QStringLiteral("All Files (*.*)|*.*|Cascading Style Sheets (*.css)|*.css"),
         .FilterIndex = 1,
         .InitDir = workingFolder(m_context.services),
         .FileName = {}});
    Document *active = document();
    if (!cdlInsExternalCSS || !active)
        return;
    const QString name = ExcludePath(m_context, cdlInsExternalCSS->fileName);
    const QString link = QStringLiteral("<LINK REL=\"stylesheet\" TYPE=\"text/css\" HREF=\"%1\">").arg(name);
    active->txtEdit().setSelText(writtenMarkup(m_context, link));
    active->txtEdit().SetFocus();
}

void MainCommands::mnuInsColourCode_Click()
{
    InsertColourCode(m_context);
}

void MainCommands::mnuOmitBasePath_Click()
{
    const bool exclude = !settings::isOn(m_context.services.settings, settings::ExcludeBasePath);
    settings::writeBoolean(m_context.services.settings, settings::ExcludeBasePath, exclude);
    action(QStringLiteral("mnuOmitBasePath"))->setChecked(exclude);
}

void MainCommands::mnuIndent_Click()
{
    indent(true);
}

void MainCommands::mnuOutdent_Click()
{
    indent(false);
}

void MainCommands::indent(bool further)
{
    if (Document *active = document()) {
        active->IndentText(further);
        active->txtEdit().SetFocus();
    }
}

void MainCommands::mnuCodeOptimise_Click()
{
    if (m_context.services.messageBoxes.show(optimiseBox()) != MessageAnswer::Yes)
        return;
    if (Document *active = document()) {
        active->OptimiseSyntax();
        active->txtEdit().SetFocus();
    }
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
