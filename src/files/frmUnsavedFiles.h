#pragma once

#include "forms/dialogForm.h"

class QListWidget;

/// Lists the documents with unsaved changes and saves the one that the user picks.
class frmUnsavedFiles final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmUnsavedFiles(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdSave_Click();
    void fillList();

    QListWidget *lstUnsavedFiles = nullptr;
};
