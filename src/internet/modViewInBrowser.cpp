#include "internet/modViewInBrowser.h"

#include "common/paths.h"
#include "platform/launcher.h"
#include "platform/messageBoxes.h"
#include "platform/programContext.h"
#include "platform/screenPointer.h"
#include "platform/services.h"

namespace
{
constexpr int DefaultPointer = 0;
constexpr int HourglassPointer = 11;

bool looksLikePage(const QString &target)
{
    const QString text = target.toLower();
    for (const QString &mark : {QStringLiteral("www."), QStringLiteral("http:"), QStringLiteral("//")})
        if (text.contains(mark))
            return true;
    const QString extension = GetFileExtension(text);
    return extension == u"html" || extension == u"htm" || extension == u"asp";
}

bool userWantsIt(ProgramContext &context)
{
    const MessageBox box{.title = QStringLiteral("Unrecognised File Type"),
                         .text = QStringLiteral("The file is not recognised as a webpage. Do you still want to try "
                                                "opening it using its default program?"),
                         .icon = MessageIcon::Information,
                         .buttons = MessageButtons::YesNoCancel};
    return context.services.messageBoxes.show(box) == MessageAnswer::Yes;
}
} // namespace

void OpenInBrowser(ProgramContext &context, const QString &target)
{
    if (Document *document = context.mainWindow->activeDocument())
        document->txtEdit().SetFocus();
    if (target.isEmpty())
        return;
    context.screenPointer.setMousePointer(HourglassPointer);
    if (looksLikePage(target) || userWantsIt(context))
        context.services.launcher.openUrl(target);
    context.screenPointer.setMousePointer(DefaultPointer);
}

void OpenLink(ProgramContext &context, const QString &url)
{
    context.services.launcher.openUrl(url);
}
