#pragma once

#include "forms/dialogForm.h"

/// Shows which lines a recovered text has otherwise than its file.
class frmWhatChanged final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmWhatChanged(ProgramContext &context);

    /// What the next load shows: the lines that went from the first text, and those that came in the second.
    void setTexts(const QString &before, const QString &after);

protected:
    void Form_Load() override;

private:
    QString m_difference;
};
