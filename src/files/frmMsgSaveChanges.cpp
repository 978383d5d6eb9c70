#include "files/frmMsgSaveChanges.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/unsavedText.h"
#include "files/unsavedDocuments.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace
{
QLabel *paragraph(const QString &name, const QString &text)
{
    QLabel *label = ui::label(name, text);
    label->setWordWrap(true);
    return label;
}
} // namespace

frmMsgSaveChanges::frmMsgSaveChanges(ProgramContext &context) : Form(context, QStringLiteral("frmMsgSaveChanges"))
{
    setCaption(QStringLiteral("Unsaved Changes"));
}

void frmMsgSaveChanges::Form_Load()
{
    m_answered = false;
    lstUnsavedFiles = ui::list(QStringLiteral("lstUnsavedFiles"));
    lstUnsavedFiles->setSelectionMode(QAbstractItemView::MultiSelection);
    lstUnsavedFiles->setAccessibleName(QStringLiteral("Unsaved files"));
    QPushButton *cmdYes = ui::button(QStringLiteral("cmdYes"), QStringLiteral("&Yes"), [this] { cmdYes_Click(); });
    QPushButton *cmdNo = ui::button(QStringLiteral("cmdNo"), QStringLiteral("&No to All"), [this] { cmdNo_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { Unload(); });
    setContent(ui::beside({
        ui::column({
            paragraph(QStringLiteral("lblMessage"),
                      QStringLiteral("The following files have not been saved since they were last modified. Do you "
                                     "want to save changes?")),
            paragraph(QStringLiteral("lblSelect"),
                      QStringLiteral("Select the files for which you want to save changes in the list below.")),
            ui::Node(lstUnsavedFiles, 1),
            paragraph(QStringLiteral("lblChoices"),
                      QStringLiteral("Select Cancel to keep all documents open; Yes to save changes to the selected "
                                     "files; or No to All to close all documents without saving them.")),
        }),
        ui::buttons({cmdYes, cmdNo, cmdCancel}),
    }));
    window()->setMinimumWidth(520);
    setDefaultButton(cmdYes);
    setCancelButton(cmdCancel);

    lstUnsavedFiles->addItems(unsavedCaptions(frmMdi()));
    lstUnsavedFiles->selectAll();
    context().state.NoUnsavedDocuments = lstUnsavedFiles->count() == 0;
}

void frmMsgSaveChanges::cmdYes_Click()
{
    const bool saved = saveSelected();
    m_answered = saved && context().state.FormUnloadHandled;
    Unload();
    if (m_answered)
        leave();
}

bool frmMsgSaveChanges::saveSelected()
{
    QStringList rows;
    for (int row = 0; row < lstUnsavedFiles->count(); ++row)
        if (lstUnsavedFiles->item(row)->isSelected())
            rows.append(lstUnsavedFiles->item(row)->text());
    for (const QString &row : rows) {
        Document *document = documentOfRow(frmMdi(), row);
        if (!document)
            continue;
        document->activate();
        if (!context().files->SaveDocument(true)) {
            document->UnsuccessfulClose = false;
            return false;
        }
    }
    return true;
}

void frmMsgSaveChanges::cmdNo_Click()
{
    m_answered = true;
    Unload();
    leave();
}

/// Ends the program. What was not saved is given up by the user's word: no start brings it back.
void frmMsgSaveChanges::leave()
{
    if (context().unsavedText)
        for (Document *document : frmMdi().openDocuments())
            context().unsavedText->forget(*document);
    context().end();
}

void frmMsgSaveChanges::Form_Unload()
{
    if (!m_answered)
        callOffExit();
}

void frmMsgSaveChanges::callOffExit()
{
    frmMdi().ExitInProgress = false;
    context().state.FormUnloadHandled = false;
    frmMdi().SaveListShown = false;
    frmMdi().setEnabled(true);
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}
