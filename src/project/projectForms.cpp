#include "project/projectForms.h"

#include "project/frmNewProject.h"
#include "project/frmPrjProperties.h"
#include "project/frmProjectLayout.h"

std::vector<std::unique_ptr<Form>> projectForms(ProgramContext &context, ProjectFileCtrl &project)
{
    std::vector<std::unique_ptr<Form>> forms;
    forms.push_back(std::make_unique<frmNewProject>(context, project));
    forms.push_back(std::make_unique<frmPrjProperties>(context, project));
    forms.push_back(std::make_unique<frmProjectLayout>(context));
    return forms;
}
