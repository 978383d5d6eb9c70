#include "files/filesForms.h"

#include "files/frmMsgAddSavedFileToProject.h"
#include "files/frmMsgCombinedTemplateFilesToSave.h"
#include "files/frmMsgNoFileForAutoSave.h"
#include "files/frmMsgOpenTemplate.h"
#include "files/frmMsgSaveChanges.h"
#include "files/frmMsgSaveTemplate.h"
#include "files/frmOpenTemplate.h"
#include "files/frmPrintPreview.h"
#include "files/frmPrinting.h"
#include "files/frmProperties.h"
#include "files/frmUnsavedFiles.h"
#include "files/frmWhatChanged.h"

namespace
{
template <class... Forms>
std::vector<std::unique_ptr<Form>> made(ProgramContext &context)
{
    std::vector<std::unique_ptr<Form>> forms;
    (forms.push_back(std::make_unique<Forms>(context)), ...);
    return forms;
}
} // namespace

std::vector<std::unique_ptr<Form>> filesForms(ProgramContext &context)
{
    return made<frmMsgSaveChanges, frmUnsavedFiles, frmMsgNoFileForAutoSave, frmMsgAddSavedFileToProject, frmProperties,
                frmWhatChanged, frmOpenTemplate, frmMsgOpenTemplate, frmMsgCombinedTemplateFilesToSave,
                frmMsgSaveTemplate, frmPrinting, frmPrintPreview>(context);
}
