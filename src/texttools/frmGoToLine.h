#pragma once

#include "forms/dialogForm.h"

class NumberField;

/// Puts the caret at the start of a line.
class frmGoToLine final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmGoToLine(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdGoTo_Click();
    void goTo(qint64 line);

    NumberField *txtGoToLineNumber = nullptr;
};
