#pragma once

#include <QWidget>

class DriveList;
class FileList;
class FileSystem;
class FolderList;
class ListView;

/// The page of the machine's own files in the Task Manager Pane: a place, a folder under it, and the folder's files.
class LocalPage final : public QWidget
{
    Q_OBJECT
public:
    explicit LocalPage(FileSystem &files, QWidget *parent = nullptr);

    /// Lists the files of the folder again; of the user's home at first.
    void refresh();

    DriveList *drvLocal = nullptr;
    FolderList *dirLocal = nullptr;
    ListView *lstLocal = nullptr;

Q_SIGNALS:
    void fileChosen(const QString &path); ///< by a double click or by Enter

private:
    void filTempLocal_PathChange();

    FileSystem &m_files;
    FileList *filTempLocal = nullptr;
};
