#pragma once

#include "forms/form.h"

class ProjectFileCtrl;
class QLineEdit;
class QPushButton;

/// Makes a new site project: asks for its file at once, then for the site's name and author.
class frmNewProject final : public Form
{
    Q_OBJECT
public:
    frmNewProject(ProgramContext &context, ProjectFileCtrl &project);

protected:
    void Form_Load() override;

private:
    void buildControls();
    void chooseFile();
    void txtProjectPath_Change();
    void cmdOK_Click();

    ProjectFileCtrl &m_project;
    QLineEdit *txtProjectPath = nullptr;
    QLineEdit *txtSiteName = nullptr;
    QLineEdit *txtSiteAuthor = nullptr;
    QPushButton *cmdOK = nullptr;
};
