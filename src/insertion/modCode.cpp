#include "insertion/modCode.h"

#include "common/mainWindow.h"
#include "forms/programContext.h"

void wrapPlainly(ProgramContext &context, const QString &openText, const QString &closeText)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    TextSurface &edit = document->txtEdit();
    edit.setSelText(openText + edit.SelText() + closeText);
    if (!closeText.isEmpty())
        edit.setSelStart(edit.SelStart() - closeText.size());
    edit.SetFocus();
}

void WrapSelection(ProgramContext &context, const QString &openText, const QString &closeText)
{
    wrapPlainly(context, openText, closeText);
    if (Document *document = context.mainWindow->activeDocument())
        document->ExternalCallColourCode();
}
