#pragma once

#include <QString>

/// The folders from which the program's folder is found.
struct ProgramPlaces {
    QString executableFolder; ///< where the running program stands
    QString installedData;    ///< the data files of an installation; empty if there are none
    QString userDataHome;     ///< $XDG_DATA_HOME
};

/// The places of the running program.
ProgramPlaces runningProgramPlaces();

/// The program's folder (`App.Path`), without a final separator: the executable's own if the data files stand there and
/// it can be written, else "tagwrighter" in the user's data folder. There it adds what the installed data have and the
/// folder has not; what stands there is left alone, and what cannot be copied is passed over.
QString programFolder(const ProgramPlaces &places);
