#pragma once

#include "forms/dialogForm.h"

class NumberField;

/// Puts the caret behind a character.
class frmGoToCharacter final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmGoToCharacter(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdGoTo_Click();

    NumberField *txtGoToCharNumber = nullptr;
};
