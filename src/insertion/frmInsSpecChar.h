#pragma once

#include "forms/dialogForm.h"

#include <QString>

class CharacterGrid;
class QLabel;

/// The entity that the dialog writes for a character: nothing for codes that have none. By intent the blank has a
/// dollar sign where the others have an ampersand, and the last four codes go without their semicolon.
QString characterEntity(QChar character);
/// The same as it has to be: all of them closed, and the blank by its name.
QString rightCharacterEntity(QChar character);

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
