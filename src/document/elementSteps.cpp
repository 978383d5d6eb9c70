#include "document/elementSteps.h"

#include "common/text.h"
#include "common/textSurface.h"

namespace
{
/// `open` is the place of the "<", counted from 1; below that there is none.
void selectElement(TextSurface &edit, qsizetype open)
{
    if (open < 1)
        return;
    edit.setSelStart(open - 1);
    edit.setSelLength(Find(edit.Text(), u">", open).value_or(0) - edit.SelStart());
}
} // namespace

void SelectNextElement(TextSurface &edit)
{
    selectElement(edit, Find(edit.Text(), u"<", edit.SelStart() + edit.SelLength() + 1).value_or(0));
}

void SelectPreviousElement(TextSurface &edit)
{
    selectElement(edit, FindBack(edit.Text(), u"<", edit.SelStart()).value_or(0));
}
