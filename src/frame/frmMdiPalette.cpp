// What the palette lists: the files that are at hand, and the commands of the menus.
#include "common/fileCommands.h"
#include "common/paths.h"
#include "common/siteProject.h"
#include "files/modRecentFiles.h"
#include "forms/formRuntime.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiCommands.h"
#include "internet/modViewInBrowser.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "shell/frmPalette.h"

#include <QAction>
#include <QUrl>

namespace
{
void openInEditor(const ProgramContext &context, const QString &path)
{
    for (Document *document : context.mainWindow->openDocuments())
        if (context.services.files.isSameFile(document->DocSavePath, path)) {
            document->activate();
            return;
        }
    context.files->OpenDocumentFile(path, false);
}

/// Pages and what else is text open in the editor, other files of the project in the desktop's program for them.
QList<PaletteEntry> fileEntries(ProgramContext &context)
{
    QList<PaletteEntry> entries;
    const auto add = [&](const QString &path, const std::function<void()> &open) {
        const QString folder = withoutFinalSeparator(folderOf(path));
        const auto isThere = [&](const PaletteEntry &entry) {
            return entry.text == FileNameOnly(path) && entry.detail == folder;
        };
        if (std::none_of(entries.begin(), entries.end(), isThere))
            entries.append({FileNameOnly(path), folder, open});
    };
    const auto addPage = [&](const QString &path) { add(path, [&context, path] { openInEditor(context, path); }); };
    for (const QString &path : recentFiles(context.services.settings))
        addPage(path);
    if (!context.project || !context.project->isOpen())
        return entries;
    for (const ProjectItem &item : context.project->editorFiles())
        addPage(item.key);
    for (const ProjectItem &item : context.project->otherFiles())
        add(item.key,
            [&context, path = item.key] { OpenLink(context, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)); });
    return entries;
}
} // namespace

void MainCommands::mnuGoToFile_Click()
{
    m_context.forms.get<frmPalette>().ShowContents({.caption = QStringLiteral("Go To File"),
                                                    .textTitle = QStringLiteral("File"),
                                                    .detailTitle = QStringLiteral("Folder"),
                                                    .entries = fileEntries(m_context)});
}

void MainCommands::mnuRunCommand_Click()
{
    m_context.forms.get<frmPalette>().ShowContents({.caption = QStringLiteral("Run Command"),
                                                    .textTitle = QStringLiteral("Command"),
                                                    .detailTitle = QStringLiteral("Key"),
                                                    .entries = commandEntries()});
}

/// What the menus would show enabled now. The files that they list stand among the files.
QList<PaletteEntry> MainCommands::commandEntries()
{
    mnuEdit_Open();
    mnuFormat_Open();
    QList<PaletteEntry> entries;
    QSet<QString> usable{QStringLiteral("bar")};
    const auto add = [this, &entries](const QString &name) {
        const QAction *entry = action(name);
        const QString text = QString(entry->text()).replace(QStringLiteral("&&"), QStringLiteral("\n")).remove(u'&');
        entries.append(
            {QString(text).replace(u'\n', u'&'), entry->shortcut().toString(QKeySequence::NativeText), [this, name] {
                 if (QAction *chosen = action(name))
                     chosen->trigger();
             }});
    };
    for (const MenuCommand &command : menuCommands()) {
        const QString name = QLatin1String(command.name);
        const QAction *entry = action(name);
        if (!usable.contains(QLatin1String(command.menu)) || !entry->isVisible() || !entry->isEnabled())
            continue;
        if (command.action.kind == CommandAction::Kind::Head)
            usable.insert(name);
        else if (command.action.kind != CommandAction::Kind::Separator &&
                 command.action.kind != CommandAction::Kind::Nothing &&
                 !name.startsWith(QStringLiteral("mnuRecentFile")))
            add(name);
    }
    for (const QString &name : std::as_const(m_addIns))
        add(name);
    return entries;
}
