#pragma once

#include "platform/helpViewer.h"

class FileSystem;
class Launcher;
class MessageBoxes;

/// Shows the pages of the help folder in the browser of the desktop, and says so in a box where a page is missing.
class LaunchedHelpViewer final : public HelpViewer
{
public:
    LaunchedHelpViewer(const QString &folderOfHelp, FileSystem &fileSystem, Launcher &desktopLauncher,
                       MessageBoxes &boxes);

    void show(const QString &topic) override;
    void contents() override;
    void index() override;

private:
    void showPage(const QString &relativePath);

    QString folder;
    FileSystem &files;
    Launcher &launcher;
    MessageBoxes &messageBoxes;
};
