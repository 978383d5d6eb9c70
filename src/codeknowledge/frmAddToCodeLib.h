#pragma once

#include "forms/dialogForm.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;

/// Takes the selection of the active document into the user's code library.
class frmAddToCodeLib final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmAddToCodeLib(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdAdd_Click();
    bool write(const QString &path);
    QString folder() const;

    QLineEdit *txtCodeTitle = nullptr;
    QPlainTextEdit *txtDescription = nullptr;
    QCheckBox *chkCreateFolder = nullptr;
};
