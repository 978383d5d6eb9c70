#pragma once

#include "insertion/insertionForm.h"

class NumberField;
class QCheckBox;
class QLineEdit;

/// What the text box dialog holds. Numbers are the texts of their boxes.
struct TextboxFields {
    QString name = {};
    QString value = {};
    QString size = {};
    QString maxLength = {};
    bool password = false;
};

QString textboxMarkup(const TextboxFields &fields);

/// Writes a field for one line of text, or for a password.
class frmFormTextbox final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormTextbox(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QLineEdit *txtName = nullptr;
    QLineEdit *txtInitValue = nullptr;
    NumberField *txtSize = nullptr;
    NumberField *txtMaxLen = nullptr;
    QCheckBox *chkPasswordField = nullptr;
};
