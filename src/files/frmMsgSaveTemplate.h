#pragma once

#include "forms/form.h"

/// Tells that a combined template was saved, and which files are in it.
class frmMsgSaveTemplate final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgSaveTemplate(ProgramContext &context);

    /// The template's name and the names of its accompanying files; before it is shown.
    void setResult(const QString &templateName, const QStringList &files);

protected:
    void Form_Load() override;

private:
    QString m_templateName;
    QStringList m_files;
};
