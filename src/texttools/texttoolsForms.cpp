#include "texttools/texttoolsForms.h"

#include "texttools/frmChangeCase.h"
#include "texttools/frmChangeRootDirectory.h"
#include "texttools/frmFind.h"
#include "texttools/frmGoToCharacter.h"
#include "texttools/frmGoToLine.h"
#include "texttools/frmPageCheck.h"
#include "texttools/frmSyntaxCheck.h"
#include "texttools/frmWordCount.h"

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

std::vector<std::unique_ptr<Form>> texttoolsForms(ProgramContext &context)
{
    return made<frmSyntaxCheck, frmFind, frmGoToLine, frmGoToCharacter, frmWordCount, frmChangeCase,
                frmChangeRootDirectory, frmPageCheck>(context);
}
