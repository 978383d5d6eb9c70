#include "codeknowledge/codeknowledgeForms.h"

#include "codeknowledge/frmAddToCodeLib.h"
#include "codeknowledge/frmCodeLibrary.h"
#include "codeknowledge/frmRenameCodeEntry.h"

std::vector<std::unique_ptr<Form>> codeknowledgeForms(ProgramContext &context)
{
    std::vector<std::unique_ptr<Form>> forms;
    forms.push_back(std::make_unique<frmCodeLibrary>(context));
    forms.push_back(std::make_unique<frmAddToCodeLib>(context));
    forms.push_back(std::make_unique<frmRenameCodeEntry>(context));
    return forms;
}
