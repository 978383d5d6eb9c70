#pragma once

#include "forms/form.h"

class FileList;
class ListView;
class QPlainTextEdit;
class QPushButton;

/// Lists what a new document can begin from, with a look at the chosen template's page.
class frmNew final : public Form
{
    Q_OBJECT
public:
    explicit frmNew(ProgramContext &context);

protected:
    void prepareLoad() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void buildControls();
    void lstNew_Selection();
    void cmdOK_Click();
    void cmdEdit_Click();

    ListView *lstNew = nullptr;
    FileList *dirTemplates = nullptr;
    QPlainTextEdit *txtPreview = nullptr;
    QPushButton *cmdEdit = nullptr;
};
