// What the dialogs are offered of the open project.
#include "project/modProjectFileCtrl.h"

#include "common/addressText.h"
#include "common/fileBook.h"
#include "common/paths.h"
#include "common/programState.h"
#include "common/siteProject.h"
#include "forms/programContext.h"
#include "widgets/controls.h"

#include <QComboBox>

namespace
{
QStringList extensionsOf(ProjectFiles kind, const Habits &habits)
{
    if (kind == ProjectFiles::Pages)
        return {QStringLiteral("htm"), QStringLiteral("html")};
    return fileBook(habits).pictureKinds;
}

/// The same files as addresses from the root of the site, which the project's folder is; those elsewhere have none.
QStringList fromProjectFolder(const QStringList &paths, const QString &project)
{
    const QString folder = FolderOfPath(project);
    QStringList addresses;
    for (const QString &path : paths)
        if (path.startsWith(folder))
            addresses.append(u'/' + encodedAddress(path.mid(folder.size())));
    return addresses;
}
} // namespace

void FillProjectFileList(ProgramContext &context, ProjectFiles kind, QComboBox &combo)
{
    if (!context.project)
        return;
    const QStringList extensions = extensionsOf(kind, context.state.habits);
    const QList<ProjectItem> items =
        kind == ProjectFiles::Pages ? context.project->editorFiles() : context.project->otherFiles();
    QStringList paths;
    for (const ProjectItem &item : items) {
        if (extensions.contains(GetFileExtension(item.text).toLower()))
            paths.append(item.key);
    }
    if (context.state.habits.HabitPaths)
        paths += fromProjectFolder(paths, context.project->path());
    ui::addRows(combo, paths);
}
