#include "insertion/insertionForms.h"

#include "insertion/frmInsBgSound.h"
#include "insertion/frmInsHyperlink.h"
#include "insertion/frmInsImage.h"
#include "insertion/frmInsVideo.h"

std::vector<std::unique_ptr<Form>> insertionForms(ProgramContext &context)
{
    std::vector<std::unique_ptr<Form>> forms;
    forms.push_back(std::make_unique<frmInsHyperlink>(context));
    forms.push_back(std::make_unique<frmInsImage>(context));
    forms.push_back(std::make_unique<frmInsVideo>(context));
    forms.push_back(std::make_unique<frmInsBgSound>(context));
    return forms;
}
