#pragma once

#include "forms/dialogForm.h"

#include <QString>

class CharacterGrid;
class QLabel;

/// The characters of the codes 32 to 255, to be written as entities one after the other.
class frmInsSpecChar final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmInsSpecChar(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void grdCharacters_Click();
    void cmdInsert_Click();

    CharacterGrid *grdCharacters = nullptr;
    QLabel *lblCharacter = nullptr;
    QLabel *lblDecChr = nullptr;
};
