// The end of the main window: what is asked, and what is kept for the next start.
#include "shell/frmMdi.h"

#include "common/fileCommands.h"
#include "platform/formRuntime.h"
#include "platform/mdiForm.h"
#include "platform/services.h"
#include "shell/settings.h"

#include <QMainWindow>

namespace
{
int windowStateCode(const QWidget &window)
{
    if (window.isMaximized())
        return 2;
    return window.isMinimized() ? 1 : 0;
}
} // namespace

bool frmMdi::Form_QueryUnload()
{
    // The placement is kept even if the user then stays.
    if (settings::isOn(services().settings, settings::SaveSettingsOnExit))
        savePlacement();
    ExitInProgress = true;
    return documentsMayClose();
}

void frmMdi::savePlacement()
{
    SettingsStore &store = services().settings;
    settings::write(store, settings::WinState, QString::number(windowStateCode(*window())));
    settings::write(store, settings::WinTop, QString::number(window()->y()));
    settings::write(store, settings::WinLeft, QString::number(window()->x()));
    settings::write(store, settings::WinHeight, QString::number(window()->height()));
    settings::write(store, settings::WinWidth, QString::number(window()->width()));
}

bool frmMdi::documentsMayClose()
{
    // All are asked before the first one closes, so that a Cancel leaves every document where it is.
    for (Document *document : openDocuments())
        if (context().files && !context().files->mayClose(*document))
            return false;
    return true;
}

void frmMdi::Form_Unload()
{
    for (Form *form : context().forms.loaded())
        if (form->MDIChild())
            form->unloadAgreed();
}
