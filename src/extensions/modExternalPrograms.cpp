#include "extensions/modExternalPrograms.h"

#include "common/paths.h"
#include "extensions/modAddIns.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/frmOptions.h"

namespace
{
MessageBox locateQuestion()
{
    return {.title = QStringLiteral("Program Not Found"),
            .text = QStringLiteral("A suitable program for publishing your website on the Internet (such as Skyporter) "
                                   "could not be located. If you have one installed, you can locate its program file. "
                                   "Would you like to do this now?\r\n\r\n"
                                   "(Skyporter can be installed from Tagwrighter Setup.)"),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::YesNo};
}

MessageBox noProgramBox()
{
    return {.title = QStringLiteral("No Program Specified"),
            .text = QStringLiteral("A suitable program must be located for publishing your website on the Internet "
                                   "before Tagwrighter can start it. For instructions, please consult the \"uploading "
                                   "a website\" topic in online help."),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::OK};
}

MessageBox startErrorBox()
{
    return {.title = QStringLiteral("Program Start Error"),
            .text = QStringLiteral("An error occurred while trying to load the web publishing program."),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::OK};
}

MessageBox noUpdaterBox()
{
    return {.title = QStringLiteral("Online Updater Not Found"),
            .text = QStringLiteral("Tagwrighter was unable to launch Harbline's Online Updater. You might need to "
                                   "reinstall Tagwrighter."),
            .icon = MessageIcon::Critical,
            .buttons = MessageButtons::OK};
}

void showOptionsAndBrowse(ProgramContext &context)
{
    context.forms.show<frmOptions>();
    context.forms.get<frmOptions>().ExternalSearchForFTP();
}

void locatePublishingProgram(ProgramContext &context)
{
    MessageBoxes &boxes = context.services.messageBoxes;
    if (boxes.show(locateQuestion()) != MessageAnswer::Yes)
        boxes.show(noProgramBox());
    else
        showOptionsAndBrowse(context);
}
} // namespace

void RunPublishingProgram(ProgramContext &context)
{
    const QString program = settings::read(context.services.settings, settings::FTPTransfer);
    if (program.isEmpty())
        locatePublishingProgram(context);
    else if (!context.services.launcher.start(program))
        context.services.messageBoxes.show(startErrorBox());
}

void RunUpdater(ProgramContext &context)
{
    const QString updater = joinPath(context.services.appPath, QStringLiteral("NetUpdate.exe"));
    if (!context.services.files.exists(updater))
        context.services.messageBoxes.show(noUpdaterBox());
    else if (!context.services.launcher.start(updater))
        tellAddInFailed(context, QStringLiteral("NetUpdate"));
}
