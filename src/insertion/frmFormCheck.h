#pragma once

#include "insertion/insertionForm.h"

class QCheckBox;
class QLineEdit;

/// What the check box dialog holds.
struct CheckFields {
    QString name = {};
    QString value = {};
    bool checked = false;
};

QString checkMarkup(const CheckFields &fields);

/// Writes a check box.
class frmFormCheck final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormCheck(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QLineEdit *txtName = nullptr;
    QLineEdit *txtValue = nullptr;
    QCheckBox *chkChecked = nullptr;
};
