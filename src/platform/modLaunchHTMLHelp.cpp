#include "platform/modLaunchHTMLHelp.h"

#include "platform/helpViewer.h"
#include "platform/programContext.h"
#include "platform/services.h"

void OpenHelpTopic(ProgramContext &context, const QString &topic)
{
    context.services.help.show(topic);
}
