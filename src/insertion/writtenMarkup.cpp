#include "insertion/writtenMarkup.h"

#include "common/habitEffects.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"

namespace
{
MarkupLanguage languageOfPage(const ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    return document ? markupLanguage(document->txtEdit().Text()) : MarkupLanguage::Html;
}
} // namespace

QString writtenMarkup(const ProgramContext &context, const QString &made)
{
    return writesTodaysMarkup(context.state.habits) ? rightMarkup(made, languageOfPage(context)) : made;
}

MarkupPair writtenAround(const ProgramContext &context, const MarkupPair &made)
{
    return writesTodaysMarkup(context.state.habits) ? rightMarkupAround(made, languageOfPage(context)) : made;
}
