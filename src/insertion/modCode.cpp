#include "insertion/modCode.h"

#include "common/mainWindow.h"
#include "forms/programContext.h"
#include "insertion/writtenMarkup.h"

void wrapPlainly(ProgramContext &context, const QString &openText, const QString &closeText)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    TextSurface &edit = document->txtEdit();
    const MarkupPair written = writtenAround(context, {.opening = openText, .closing = closeText});
    edit.setSelText(written.opening + edit.SelText() + written.closing);
    if (!written.closing.isEmpty())
        edit.setSelStart(edit.SelStart() - written.closing.size());
    edit.SetFocus();
}

void WrapSelection(ProgramContext &context, const QString &openText, const QString &closeText)
{
    wrapPlainly(context, openText, closeText);
    if (Document *document = context.mainWindow->activeDocument())
        document->ExternalCallColourCode();
}
