#include "insertion/writtenMarkup.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "insertion/markupBook.h"

namespace
{
QString activePage(const ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    return document ? document->txtEdit().Text() : QString();
}
} // namespace

QString writtenMarkup(const ProgramContext &context, const QString &made)
{
    return markupBook(context.state.habits).written(made, activePage(context));
}

MarkupPair writtenAround(const ProgramContext &context, const MarkupPair &made)
{
    return markupBook(context.state.habits).writtenAround(made, activePage(context));
}
