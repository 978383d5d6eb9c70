#pragma once

#include "insertion/insertionForm.h"

class QPlainTextEdit;

/// A comment of one line, or of more lines, which then stand between the marks on lines of their own.
QString commentMarkup(const QString &comment);

class frmInsCodeComment final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsCodeComment(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QPlainTextEdit *txtComment = nullptr;
};
