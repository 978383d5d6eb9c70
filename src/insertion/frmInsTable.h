#pragma once

#include "insertion/insertionForm.h"
#include "insertion/tableMarkup.h"
#include "widgets/layout.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

/// Writes a table of empty cells.
class frmInsTable final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsTable(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    std::optional<QString> markup() override;

private:
    ui::Node sizeGroup();
    ui::Node widthLine();
    ui::Node layoutGroup();
    ui::Node lineGroup();
    void chkSpecifyWidth_Click();
    TableFields fields() const;

    NumberField *txtRows = nullptr;
    NumberField *txtCols = nullptr;
    QCheckBox *chkSpecifyWidth = nullptr;
    NumberField *txtWidth = nullptr;
    SpinButton *UpDown3 = nullptr;
    QRadioButton *optPercent = nullptr;
    QRadioButton *optPixels = nullptr;
    QComboBox *cboAlign = nullptr;
    NumberField *txtBorder = nullptr;
    NumberField *txtCellPadding = nullptr;
    NumberField *txtCellSpacing = nullptr;
    QComboBox *cboFrame = nullptr;
    QComboBox *cboRules = nullptr;
    QLineEdit *txtSummary = nullptr;
};
