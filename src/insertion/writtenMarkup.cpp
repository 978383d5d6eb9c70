#include "insertion/writtenMarkup.h"

#include "common/fileHabits.h"
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

bool writesTodaysMarkup(const ProgramContext &context)
{
    return context.state.habits.HabitMarkup;
}

bool imagesNeedSource(const ProgramContext &context)
{
    return ::imagesNeedSource(context.state.habits);
}

QString writtenMarkup(const ProgramContext &context, const QString &made)
{
    return writesTodaysMarkup(context) ? rightMarkup(made, languageOfPage(context)) : made;
}

MarkupPair writtenAround(const ProgramContext &context, const MarkupPair &made)
{
    return writesTodaysMarkup(context) ? rightMarkupAround(made, languageOfPage(context)) : made;
}
