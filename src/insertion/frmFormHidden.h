#pragma once

#include "insertion/insertionForm.h"

class QLineEdit;

QString hiddenFieldMarkup(const QString &name, const QString &value);

/// Writes a value that the reader of the page does not see.
class frmFormHidden final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormHidden(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QLineEdit *txtName = nullptr;
    QLineEdit *txtInitValue = nullptr;
};
