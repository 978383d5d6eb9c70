// What the dialogs are offered of the open project.
#include "project/modProjectFileCtrl.h"

#include "common/paths.h"
#include "common/siteProject.h"
#include "forms/programContext.h"
#include "widgets/controls.h"

#include <QComboBox>

namespace
{
QStringList extensionsOf(ProjectFiles kind)
{
    if (kind == ProjectFiles::Pages)
        return {QStringLiteral("htm"), QStringLiteral("html")};
    return {QStringLiteral("gif"), QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("bmp"),
            QStringLiteral("dib"), QStringLiteral("ico"), QStringLiteral("cur")};
}
} // namespace

void FillProjectFileList(ProgramContext &context, ProjectFiles kind, QComboBox &combo)
{
    if (!context.project)
        return;
    const QStringList extensions = extensionsOf(kind);
    const QList<ProjectItem> items =
        kind == ProjectFiles::Pages ? context.project->editorFiles() : context.project->otherFiles();
    QStringList paths;
    for (const ProjectItem &item : items) {
        if (extensions.contains(GetFileExtension(item.text).toLower()))
            paths.append(item.key);
    }
    ui::addRows(combo, paths);
}
