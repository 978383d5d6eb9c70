#pragma once

#include "common/colour.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// What an open or save dialog is to show.
struct FileDialogRequest {
    QString DialogTitle = {};         ///< empty: the dialog's usual title
    QString Filter = {};              ///< "Description|patterns|Description|patterns"; empty: all files
    int FilterIndex = 1;              ///< the row preselected, counted from 1
    QString InitDir = {};             ///< folder to start in, unless FileName names one
    QString FileName = {};            ///< name or full path proposed
    QString DefaultExt = {};          ///< of a save: put behind a name that is typed without an extension
    bool severalFiles = false;        ///< of an open: more than one file may be chosen
    bool asksBeforeReplacing = false; ///< of a save: the dialog itself asks before a file that is there is chosen
    QString NearDir = {};             ///< folder offered beside InitDir, and taken where that is not there
};

struct FileDialogResult {
    QString fileName;        ///< full native path
    int filterIndex = 1;     ///< the row in force when the user confirmed, counted from 1
    QStringList others = {}; ///< the files chosen beside it, where several may be

    QStringList allFileNames() const { return QStringList(fileName) + others; }
};

/// The name that a save dialog gives: where the user's has no ending, and is no file that is there already, it takes
/// the first ending of the row in force, as desktop dialogs do. A row for all files has none.
FileDialogResult withEnding(const FileDialogResult &chosen, const QString &filter,
                            const std::function<bool(const QString &)> &exists);

struct FontChoice {
    QString family;
    int points = 0;
};

/// The dialogs of the desktop. Each gives nothing when the user leaves it without a choice.
class CommonDialogs
{
public:
    CommonDialogs() = default;
    CommonDialogs(const CommonDialogs &) = delete;
    CommonDialogs &operator=(const CommonDialogs &) = delete;
    virtual ~CommonDialogs() = default;

    virtual std::optional<FileDialogResult> showOpen(const FileDialogRequest &request) = 0;
    /// Does not ask whether an existing file is to be replaced unless the request says so: the program does that
    /// itself.
    virtual std::optional<FileDialogResult> showSave(const FileDialogRequest &request) = 0;
    /// A folder without a final separator.
    virtual std::optional<QString> showFolder(const QString &title, const QString &initialFolder) = 0;
    virtual std::optional<ColourValue> showColour(ColourValue initial) = 0;
    virtual std::optional<FontChoice> showFont(const FontChoice &initial) = 0;
    /// The number of copies, at least 1.
    virtual std::optional<int> showPrint() = 0;
};
