#pragma once

#include "insertion/insertionForm.h"

class QComboBox;
class QLineEdit;

/// What the form dialog holds.
struct FormFields {
    QString name = {};
    QString action = {};
    QString method = {};
};

/// One `form` element without contents.
QString formMarkup(const FormFields &fields);

/// Writes the form that the fields of a page stand in.
class frmFormField final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormField(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QLineEdit *txtName = nullptr;
    QLineEdit *txtAction = nullptr;
    QComboBox *cboMethod = nullptr;
};
