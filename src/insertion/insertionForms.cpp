#include "insertion/insertionForms.h"

#include "insertion/frmColourSel.h"
#include "insertion/frmColourSelSafe.h"
#include "insertion/frmDateTime.h"
#include "insertion/frmFont.h"
#include "insertion/frmInsBgSound.h"
#include "insertion/frmInsCodeComment.h"
#include "insertion/frmInsHorizontalRule.h"
#include "insertion/frmInsHyperlink.h"
#include "insertion/frmInsImage.h"
#include "insertion/frmInsList.h"
#include "insertion/frmInsSpecChar.h"
#include "insertion/frmInsTable.h"
#include "insertion/frmInsVideo.h"
#include "insertion/frmSelInsertTable.h"

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

std::vector<std::unique_ptr<Form>> insertionForms(ProgramContext &context)
{
    return made<frmInsHyperlink, frmInsImage, frmInsVideo, frmInsBgSound, frmInsTable, frmSelInsertTable,
                frmInsHorizontalRule, frmInsList, frmInsCodeComment, frmDateTime, frmFont, frmInsSpecChar,
                frmColourSelSafe, frmColourSel>(context);
}
