#pragma once

#include "files/filePropertiesPage.h"
#include "forms/form.h"

class ProjectFileCtrl;
class QLabel;
class QLineEdit;

/// Shows the open project's file, and lets the user change the site's name and author.
class frmPrjProperties final : public Form
{
    Q_OBJECT
public:
    frmPrjProperties(ProgramContext &context, const ProjectFileCtrl &project);

protected:
    void Form_Load() override;

private:
    void buildControls();
    ui::Node projectPage();
    void showProject();
    void cmdOK_Click();

    const ProjectFileCtrl &m_project;
    FilePropertiesPage m_file;
    QLineEdit *txtPrjDescription = nullptr;
    QLineEdit *txtPrjAuthor = nullptr;
    QLabel *lblEditorFileCount = nullptr;
    QLabel *lblOtherFileCount = nullptr;
};
