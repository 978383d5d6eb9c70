#pragma once

#include "forms/dialogForm.h"

class QRadioButton;

/// Turns the selection into capital or small letters.
class frmChangeCase final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmChangeCase(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();

    QRadioButton *optUppercase = nullptr;
    QRadioButton *optLowerCase = nullptr;
};
