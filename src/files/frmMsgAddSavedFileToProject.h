#pragma once

#include "forms/form.h"

class QComboBox;

/// Asks whether a file that has just been saved is to be added to the open project. The answer is the main window's
/// `AddSavedFileAnswer`.
class frmMsgAddSavedFileToProject final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgAddSavedFileToProject(ProgramContext &context);

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

private:
    void answer(bool add);

    QComboBox *cboQuestionAsk = nullptr;
};
