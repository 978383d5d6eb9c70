#include "forms/dialogForm.h"

#include "common/mainWindow.h"
#include "common/programState.h"

void DialogForm::prepareLoad()
{
    frmMdi().setEnabled(false);
}

void DialogForm::Form_Unload()
{
    ReturnFromDialog(context());
}

void DialogForm::cancel()
{
    context().state.DialogCancelled = true;
    Unload();
}

void ReturnFromDialog(ProgramContext &context)
{
    MainWindow &mainWindow = *context.mainWindow;
    mainWindow.setEnabled(true);
    Document *document = mainWindow.OpenDocumentCount < 1 ? nullptr : mainWindow.activeDocument();
    if (!document)
        return;
    document->UndoRedoChange();
    document->txtEdit().SetFocus();
    if (context.state.DialogCancelled)
        document->UpdateLineInformation();
    else
        document->ExternalCallColourCode();
    context.state.DialogCancelled = false;
}
