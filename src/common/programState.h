#pragma once

#include "common/habits.h"
#include "common/projectState.h"

#include <QString>
#include <QStringList>
#include <functional>

/// The variables that the whole program shares for one session, owned by the application object.
struct ProgramState {
    bool AlreadyStarted = false;           ///< the main window has been loaded once
    bool StartedAnew = false;              ///< this start goes on where the one before it has just ended by itself
    bool FormUnloadHandled = false;        ///< the exit list has dealt with this exit: documents close without asking
    bool NoUnsavedDocuments = false;       ///< the exit list found nothing to ask about
    bool DialogCancelled = false;          ///< a dialog's Cancel was pressed; ReturnFromDialog reads and clears it
    bool PreviewCancelled = false;         ///< the question about an unsaved document was left: there is no preview
    bool PreviewUseTempCopy = false;       ///< an unsaved document is shown by a temporary copy, not saved first
    bool PreviewBusy = false;              ///< a live preview is being written and gone to
    QString ColourCode = {};               ///< "#RRGGBB" as the palette dialogs leave it; empty: no colour was picked
    std::function<void()> stopWizard = {}; ///< ends the wizard that runs; nothing while there is none
    bool ProgramEnded = false;             ///< the windows are gone; what events still bring has nowhere to show
    QStringList setAside = {};             ///< files that could not be the program's own, by their new paths; untold
    Habits habits = {};                    ///< as read at the start and at each choice since
    ProjectState project;
};
