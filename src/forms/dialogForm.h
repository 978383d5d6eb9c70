#pragma once

#include "forms/form.h"

/// A dialog as the program knows it: modeless to the desktop, but the main window takes no input while it is up. Its
/// load begins by disabling the main window, its unload ends with ReturnFromDialog.
class DialogForm : public Form
{
    Q_OBJECT
public:
    using Form::Form;

protected:
    void prepareLoad() override;
    void Form_Unload() override;

    /// What Cancel does: nothing of the dialog reaches the document.
    void cancel();
};

/// Gives the program back from a dialog to the active document, in this order: the main window takes input again;
/// without a document nothing more happens and DialogCancelled stays. Else the document takes a step into its history,
/// gets the focus, and is coloured anew, or after a Cancel only its line information is; DialogCancelled becomes False.
void ReturnFromDialog(ProgramContext &context);
