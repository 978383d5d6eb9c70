#pragma once

#include <QString>

/// The program's folder for state: "tagwrighter" in $XDG_STATE_HOME, or in .local/state of the home where that is unset
/// or no full path.
QString stateFolder();
