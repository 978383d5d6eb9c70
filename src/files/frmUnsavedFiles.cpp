#include "files/frmUnsavedFiles.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "files/unsavedDocuments.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

frmUnsavedFiles::frmUnsavedFiles(ProgramContext &context) : DialogForm(context, QStringLiteral("frmUnsavedFiles"))
{
    setCaption(QStringLiteral("Unsaved Documents"));
}

void frmUnsavedFiles::Form_Load()
{
    lstUnsavedFiles = ui::list(QStringLiteral("lstUnsavedFiles"));
    QLabel *label =
        ui::label(QStringLiteral("lblMessage"),
                  QStringLiteral("The following documents have not been saved since they were last modified:"));
    label->setWordWrap(true);
    label->setBuddy(lstUnsavedFiles);
    lstUnsavedFiles->setAccessibleName(QStringLiteral("Unsaved documents"));
    QPushButton *cmdSave = ui::button(QStringLiteral("cmdSave"), QStringLiteral("&Save"), [this] { cmdSave_Click(); });
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { cancel(); });
    setContent(ui::beside({ui::column({label, ui::Node(lstUnsavedFiles, 1)}), ui::buttons({cmdSave, cmdClose})}));
    window()->setMinimumWidth(480);
    setDefaultButton(cmdSave);
    setCancelButton(cmdClose);
    fillList();
}

void frmUnsavedFiles::fillList()
{
    lstUnsavedFiles->clear();
    lstUnsavedFiles->addItems(unsavedCaptions(frmMdi()));
}

void frmUnsavedFiles::cmdSave_Click()
{
    const QListWidgetItem *row = lstUnsavedFiles->currentItem();
    Document *document = row && row->isSelected() ? documentOfRow(frmMdi(), row->text()) : nullptr;
    if (!document)
        return;
    document->activate();
    if (document->NewDoc)
        context().files->SaveDocumentAs(false, saveAsTitle(*document));
    else
        context().files->SaveDocument(false);
    frmMdi().setEnabled(false); // the save has given it back, but this form is still on show
    window()->activateWindow();
    fillList();
}
