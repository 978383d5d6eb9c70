#pragma once

#include <QString>
#include <QStringList>

struct Habits;

/// How files are named to the program, in its dialogs and on its command line. There is one of each of the two ways.
struct FileBook {
    bool severalFiles;        ///< the open dialog and the command line take more files than one, the latter lines, too
    QStringList pictureKinds; ///< the extensions of the pictures that are offered, without their dots
    QString pictureRows; ///< of a filter of pictures, behind those of kinds that were always there; each with its "|"
    bool leavingKeepsField; ///< a field stays as it is when the dialog behind its "Browse..." is left
    bool imagesNeedSource;  ///< an image has to have its file named
};

/// The one that holds by these rules.
const FileBook &fileBook(const Habits &habits);
