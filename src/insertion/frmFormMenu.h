#pragma once

#include "insertion/frmAddMenuItem.h"
#include "insertion/insertionForm.h"
#include "widgets/layout.h"

class ListView;
class NumberField;
class QCheckBox;
class QLineEdit;
class SpinButton;

/// What the dialog for a list selection holds. The height is the text of its box.
struct SelectFields {
    QString name = {};
    QString height = QStringLiteral("1");
    bool multiple = false;
    bool comboBox = false; ///< drops down, so that its height is the browser's to say
    QList<SelectOption> options = {};
};

QString selectMarkup(const SelectFields &fields);

/// Writes a list to choose from.
class frmFormMenu final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormMenu(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    ui::Node settingRows();
    ui::Node optionList();
    void chkComboBox_Click();
    void cmdAddPar_Click();
    void cmdRemPar_Click();
    SelectFields fields() const;

    QLineEdit *txtName = nullptr;
    NumberField *txtHeight = nullptr;
    SpinButton *UpDownHeight = nullptr;
    QCheckBox *chkAllowMultiSel = nullptr;
    QCheckBox *chkComboBox = nullptr;
    ListView *lstValues = nullptr;
};
