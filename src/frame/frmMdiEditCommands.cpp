// What the commands of the menus Edit, Insert, Format and Tools do with the active document.
#include "frame/frmMdiCommands.h"

#include "document/colourSquares.h"
#include "document/elementSteps.h"
#include "document/handCommands.h"
#include "document/modClipboard.h"
#include "document/pictureHands.h"
#include "extensions/modWizards.h"
#include "forms/formRuntime.h"
#include "frame/frmMdi.h"
#include "insertion/modCode.h"
#include "insertion/modColourProcesses.h"
#include "insertion/modExcludePath.h"
#include "insertion/writtenMarkup.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/workingFolder.h"
#include "texttools/frmFind.h"

#include <QAction>

namespace
{
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

void MainCommands::wrapSelection(const CommandAction &action)
{
    WrapSelection(m_context, QLatin1String(action.open), QLatin1String(action.close));
}
