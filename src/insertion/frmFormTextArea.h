#pragma once

#include "insertion/insertionForm.h"

class NumberField;
class QLineEdit;
class QPlainTextEdit;

/// What the text area dialog holds. Numbers are the texts of their boxes.
struct TextAreaFields {
    QString name = {};
    QString rows = {};
    QString columns = {};
    QString value = {}; ///< stands between the two tags, with its own breaks and no other
};

QString textAreaMarkup(const TextAreaFields &fields);

/// Writes a field for several lines of text.
class frmFormTextArea final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormTextArea(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QLineEdit *txtName = nullptr;
    NumberField *txtRows = nullptr;
    NumberField *txtCols = nullptr;
    QPlainTextEdit *txtInitValue = nullptr;
};
