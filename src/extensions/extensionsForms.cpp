#include "extensions/extensionsForms.h"

#include "extensions/frmAddInManager.h"
#include "extensions/frmWizards.h"

std::vector<std::unique_ptr<Form>> extensionsForms(ProgramContext &context)
{
    std::vector<std::unique_ptr<Form>> forms;
    forms.push_back(std::make_unique<frmAddInManager>(context));
    forms.push_back(std::make_unique<frmWizards>(context));
    return forms;
}
