#pragma once

#include "forms/form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// What becomes of a combined template's accompanying files.
enum class TemplateAction {
    Cancel,
    SaveBeside,   ///< they go into the folder of the new page
    SaveInFolder, ///< they go into a folder of the user's choice
    DoNotSave,    ///< or there are none
};

struct TemplateAnswer {
    TemplateAction action = TemplateAction::Cancel;
    QString TemplateFilesFolder; ///< of SaveInFolder, with its final separator
};

/// Asks what is to become of the accompanying files of a template that is being opened.
class frmMsgOpenTemplate final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgOpenTemplate(ProgramContext &context);

    /// The number of files that it asks about; before it is shown.
    void setFileCount(qsizetype count) { m_count = count; }
    const TemplateAnswer &answer() const { return m_answer; }

protected:
    void Form_Load() override;

private:
    void choice_Click();
    void cmdBrowse_Click();
    void cmdYesOK_Click();
    TemplateAction chosen() const;

    qsizetype m_count = 1;
    TemplateAnswer m_answer;
    QRadioButton *optNormalSave = nullptr;
    QRadioButton *optDifferentLocation = nullptr;
    QRadioButton *optNoSave = nullptr;
    QLineEdit *txtNewLocation = nullptr;
    QPushButton *cmdBrowse = nullptr;
};
