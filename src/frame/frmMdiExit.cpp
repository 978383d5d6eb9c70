// The end of the main window: what is asked, and what is kept for the next start.
#include "frame/frmMdi.h"

#include "common/fileCommands.h"
#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/mdiForm.h"
#include "frame/frmMdiBands.h"
#include "frame/frmMdiPane.h"
#include "internet/uploads.h"
#include "project/modProjectFileCtrl.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/coolBar.h"
#include "widgets/sidePane.h"

#include <QMainWindow>

namespace
{
constexpr int TwipsPerPixel = 15;

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
    if (!projectMayClose())
        return false;
    if (!context().uploads->mayBeCut())
        return false;
    ExitInProgress = true;
    return documentsMayClose();
}

bool frmMdi::mayStartAnew()
{
    if (!projectMayClose() || !context().uploads->mayBeCut())
        return false;
    if (settings::isOn(services().settings, settings::SaveSettingsOnExit))
        savePlacement();
    savePaneAndBands();
    return true;
}

bool frmMdi::projectMayClose()
{
    ProjectState &project = context().state.project;
    if (!m_project->isOpen() || !project.ProjectChanged)
        return true;
    const MessageAnswer answer = services().messageBoxes.show(
        {.title = QStringLiteral("Save Changes to Project File"),
         .text = QStringLiteral("The open project file has not been saved since it was last modified. Do you want to "
                                "save changes now?"),
         .icon = MessageIcon::Exclamation,
         .buttons = MessageButtons::YesNoCancel});
    if (answer == MessageAnswer::Yes && project.save)
        return project.save(); // what could not be saved is not lost by leaving
    return answer != MessageAnswer::Cancel;
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
    savePaneAndBands();
}

void frmMdi::savePaneAndBands()
{
    SettingsStore &store = services().settings;
    settings::write(store, settings::CodebarWidth, QString::number(m_pane->picProject()->paneWidth() * TwipsPerPixel));
    for (int band = 1; band <= bands::Kept; ++band) {
        settings::write(store, settings::BarNewRow, bands::flagText(cbrMain->NewRow(band)), band);
        settings::write(store, settings::BarWidth, bands::widthText(cbrMain->Width(band)), band);
    }
}
