#pragma once

#include "forms/dialogForm.h"

class QLineEdit;

/// Asks for an abbreviation and puts its elements around the selection.
class frmWrapAbbreviation final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmWrapAbbreviation(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();

    QLineEdit *txtAbbreviation = nullptr;
};
