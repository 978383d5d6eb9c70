#pragma once

#include <QString>

/// The folders from which the program's folders are found.
struct ProgramPlaces {
    QString executableFolder; ///< where the running program stands
    QString installedData;    ///< the data files of an installation; empty if there are none
    QString userDataHome;     ///< $XDG_DATA_HOME
};

/// Where the program's files stand, without final separators.
struct ProgramFolders {
    QString own;       ///< the program's folder (`App.Path`)
    QString installed; ///< what an installation brought along; empty where that stands in `own`, or nowhere
};

/// The places of the running program.
ProgramPlaces runningProgramPlaces();

/// The program's folder is the executable's if the data files stand there and it can be written, else "tagwrighter" in
/// the user's data folder. There it adds what the user may change (templates, pages, code library, dictionaries), as
/// far as it has not been there before; what stands there is left alone, and what cannot be copied is passed over. The
/// rest is read where it is installed, or beside an executable whose folder cannot be written. Copies of it that an
/// earlier version made and nobody has changed since are taken out.
ProgramFolders programFolders(const ProgramPlaces &places);
