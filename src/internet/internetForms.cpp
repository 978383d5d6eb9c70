#include "internet/internetForms.h"

#include "internet/frmMsgPreviewUnsavedDocument.h"
#include "internet/frmOpenFromInternet.h"
#include "internet/frmSavetoInternet.h"

std::vector<std::unique_ptr<Form>> internetForms(ProgramContext &context)
{
    std::vector<std::unique_ptr<Form>> forms;
    forms.push_back(std::make_unique<frmMsgPreviewUnsavedDocument>(context));
    forms.push_back(std::make_unique<frmOpenFromInternet>(context));
    forms.push_back(std::make_unique<frmSavetoInternet>(context));
    return forms;
}
