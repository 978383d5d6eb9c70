#pragma once

#include <QString>

struct Services;

/// The folder that file dialogs start in, as the setting `WorkingDir` names it; made where it is not there, as far as
/// it can be.
QString workingFolder(Services &services);

/// Makes the folder at a start, where it is the program's own. One that the user has chosen may lie on a machine that
/// is asleep: it is looked at when it is needed.
void makeOwnWorkingFolder(Services &services);
