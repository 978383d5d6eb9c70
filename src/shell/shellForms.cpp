#include "shell/shellForms.h"

#include "shell/frmAbout.h"
#include "shell/frmMoreOptions.h"
#include "shell/frmNew.h"
#include "shell/frmOptions.h"
#include "shell/frmPalette.h"
#include "shell/frmSysInfo.h"
#include "shell/frmWelcome.h"

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

std::vector<std::unique_ptr<Form>> shellForms(ProgramContext &context)
{
    return made<frmWelcome, frmNew, frmOptions, frmMoreOptions, frmAbout, frmSysInfo, frmPalette>(context);
}
