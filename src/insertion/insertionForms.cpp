#include "insertion/insertionForms.h"

#include "insertion/frmAddJavaParam.h"
#include "insertion/frmAddMenuItem.h"
#include "insertion/frmAddObjectParam.h"
#include "insertion/frmColourSel.h"
#include "insertion/frmColourSelSafe.h"
#include "insertion/frmDateTime.h"
#include "insertion/frmFont.h"
#include "insertion/frmFormButton.h"
#include "insertion/frmFormCheck.h"
#include "insertion/frmFormField.h"
#include "insertion/frmFormHidden.h"
#include "insertion/frmFormMenu.h"
#include "insertion/frmFormRadioButton.h"
#include "insertion/frmFormTextArea.h"
#include "insertion/frmFormTextbox.h"
#include "insertion/frmInsBgSound.h"
#include "insertion/frmInsCodeComment.h"
#include "insertion/frmInsHorizontalRule.h"
#include "insertion/frmInsHyperlink.h"
#include "insertion/frmInsImage.h"
#include "insertion/frmInsImageMap.h"
#include "insertion/frmInsJavaApplet.h"
#include "insertion/frmInsList.h"
#include "insertion/frmInsObject.h"
#include "insertion/frmInsSpecChar.h"
#include "insertion/frmInsTable.h"
#include "insertion/frmInsVideo.h"
#include "insertion/frmInsertDHTMLMenu.h"
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
                frmColourSelSafe, frmColourSel, frmFormField, frmFormTextbox, frmFormTextArea, frmFormMenu,
                frmAddMenuItem, frmFormCheck, frmFormRadioButton, frmFormButton, frmFormHidden, frmInsJavaApplet,
                frmInsImageMap, frmInsertDHTMLMenu, frmAddJavaParam, frmInsObject, frmAddObjectParam>(context);
}
