#pragma once

#include "forms/dialogForm.h"

class QRadioButton;

/// Asks whether a standard template is to begin a new document or to be edited itself.
class frmOpenTemplate final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmOpenTemplate(ProgramContext &context);

    /// The template's path; before the form is shown.
    void setPath(const QString &path) { m_path = path; }

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();

    QString m_path;
    QRadioButton *optNew = nullptr;
    QRadioButton *optEdit = nullptr;
};
