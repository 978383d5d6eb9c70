#include "forms/modLaunchHTMLHelp.h"

#include "forms/programContext.h"
#include "services/helpViewer.h"
#include "services/services.h"

void OpenHelpTopic(ProgramContext &context, const QString &topic)
{
    context.services.help.show(topic);
}
