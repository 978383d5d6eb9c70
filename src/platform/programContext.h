#pragma once

#include "common/mainWindow.h"
#include "common/programState.h"

struct Services;
class FormRuntime;

/// What every form is given: the desktop's services, the forms of the session and the state that they share.
struct ProgramContext {
    Services &services;
    FormRuntime &forms;
    ProgramState &state;
    MainWindow *mainWindow = nullptr; ///< set by the main window's form for as long as it exists
};
