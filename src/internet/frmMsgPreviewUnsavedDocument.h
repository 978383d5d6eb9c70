#pragma once

#include "forms/form.h"

class QCheckBox;
class QRadioButton;

/// Asks how a document without a file that says the same is to be shown in the browser. The answer is left in the
/// program's PreviewCancelled and PreviewUseTempCopy.
class frmMsgPreviewUnsavedDocument final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgPreviewUnsavedDocument(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

    QRadioButton *optSaveDoc = nullptr;
    QRadioButton *optSaveTempCopy = nullptr;
    QCheckBox *chkDontReshow = nullptr;
    bool m_answered = false;
};
