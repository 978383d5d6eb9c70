#pragma once

#include "forms/dialogForm.h"

#include <optional>

class CheckList;

/// A row of the list of add-ins, "NAME (ID: 3)".
QString addInRow(const QString &name, int number);
/// The name and the number of a row: what stands between the last " (ID: " and the closing bracket.
struct AddInRow {
    QString name;
    int number = 0;
};
std::optional<AddInRow> parseAddInRow(const QString &row);

/// Adds programs to the menu of add-ins, hides them and takes them away. What is added or removed is so at once; the
/// ticks count with OK.
class frmAddInManager final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmAddInManager(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void fillList();
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdOK_Click();

    CheckList *lstAddIns = nullptr;
};
