#include "platform/launchedHelpViewer.h"

#include "common/paths.h"
#include "platform/fileSystem.h"
#include "platform/launcher.h"
#include "platform/messageBoxes.h"

LaunchedHelpViewer::LaunchedHelpViewer(const QString &folderOfHelp, FileSystem &fileSystem, Launcher &desktopLauncher,
                                       MessageBoxes &boxes)
    : folder(folderOfHelp), files(fileSystem), launcher(desktopLauncher), messageBoxes(boxes)
{
}

void LaunchedHelpViewer::show(const QString &topic)
{
    const QString mark = QStringLiteral("::/");
    showPage(topic.startsWith(mark) ? topic.sliced(mark.size()) : topic);
}

void LaunchedHelpViewer::contents()
{
    showPage(QStringLiteral("contents.htm"));
}

void LaunchedHelpViewer::index()
{
    showPage(QStringLiteral("index.htm"));
}

void LaunchedHelpViewer::showPage(const QString &relativePath)
{
    const QString path = joinPath(folder, relativePath);
    // Some topics are named after elements of the page, which may be called anything.
    const bool leavesTheHelp = relativePath.contains(QLatin1String(".."));
    if (!leavesTheHelp && files.exists(path) && launcher.openUrl(path))
        return;
    messageBoxes.show({QStringLiteral("Help"),
                       QStringLiteral("The help page \"%1\" could not be shown.").arg(relativePath),
                       MessageIcon::Exclamation, MessageButtons::OK});
}
