#include "project/modProjectFileCtrl.h"

#include "common/encodings.h"
#include "common/fileCommands.h"
#include "common/fileErrors.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "project/projectFile.h"
#include "project/projectPage.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/listView.h"
#include "widgets/screenPointer.h"

#include <new>

namespace
{
MessageBox invalidBox(const QString &path)
{
    return {.title = QStringLiteral("Invalid File Format"),
            .text = QStringLiteral("The file \"") + path +
                    QStringLiteral("\" is not a valid Tagwrighter Project file.\r\n\r\nThe file could not be opened."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

MessageBox newerBox(const QString &path)
{
    return {.title = QStringLiteral("Newer File Format"),
            .text = QStringLiteral("The Project file, \"") + path +
                    QStringLiteral("\" was saved in a newer version not supported by Tagwrighter. The file could not "
                                   "be opened."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

MessageBox projectOpenQuestion()
{
    return {.title = QStringLiteral("Project Open"),
            .text = QStringLiteral("A project is currently open.  Do you wish to save changes and close it?"),
            .icon = MessageIcon::Question,
            .buttons = MessageButtons::YesNo};
}

MessageBox closeQuestion()
{
    return {.title = QStringLiteral("Close Project"),
            .text = QStringLiteral("This will close the open Site Project. You will lose any unsaved work.\r\n\r\nDo "
                                   "you wish to continue?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}

QList<ProjectItem> itemsOf(const ListView &list)
{
    QList<ProjectItem> items;
    items.reserve(list.rowCount());
    for (int row = 0; row < list.rowCount(); ++row) {
        const ListRow item = list.rowAt(row);
        items.append({item.text, item.key});
    }
    return items;
}

QStringList keysOf(const QList<ProjectItem> &items)
{
    QStringList keys;
    for (const ProjectItem &item : items)
        keys.append(item.key);
    return keys;
}

/// Leaves the list as the writing does, which goes down it by its selection.
void selectFirst(ListView &list)
{
    list.clearSelection();
    list.selectRow(0);
}
} // namespace

QString projectFilter()
{
    return QStringLiteral("Tagwrighter Site Project (*.tsp)|*.tsp");
}

ProjectFileCtrl::ProjectFileCtrl(ProgramContext &context) : m_context(context)
{
    m_context.state.project.save = [this] { return SaveProject(); };
}

void ProjectFileCtrl::setPage(ProjectPage *page)
{
    m_page = page;
    m_context.state.project.forget();
    setProjectCommandsEnabled(false);
}

bool ProjectFileCtrl::isOpen() const
{
    return m_page && m_page->isOpen();
}

QString ProjectFileCtrl::path() const
{
    return m_page ? m_page->path() : QString(NoProject);
}

QList<ProjectItem> ProjectFileCtrl::editorFiles() const
{
    return m_page ? itemsOf(*m_page->lstEditorFiles) : QList<ProjectItem>();
}

QList<ProjectItem> ProjectFileCtrl::otherFiles() const
{
    return m_page ? itemsOf(*m_page->lstOtherFiles) : QList<ProjectItem>();
}

QList<int> ProjectFileCtrl::selectedEditorFiles() const
{
    return m_page ? m_page->lstEditorFiles->selectedRows() : QList<int>();
}

void ProjectFileCtrl::begin()
{
    m_context.screenPointer.setMousePointer(PointerShape::Hourglass);
    m_context.mainWindow->setEnabled(false);
}

void ProjectFileCtrl::finish()
{
    m_context.mainWindow->setEnabled(true);
    m_context.screenPointer.setMousePointer(PointerShape::Default);
}

void ProjectFileCtrl::failWith(const FileError &error)
{
    m_context.screenPointer.setMousePointer(PointerShape::Default);
    m_context.files->FileErrors(error.code, error.description);
    m_context.mainWindow->setEnabled(true);
}

void ProjectFileCtrl::setProjectCommandsEnabled(bool enabled)
{
    m_context.state.project.ProjectOpen = enabled;
    m_context.mainWindow->SetProjectCommandsEnabled(enabled);
}

QString ProjectFileCtrl::startFolder() const
{
    return settings::read(m_context.services.settings, settings::WorkingDir);
}

void ProjectFileCtrl::OpenProjectDialog()
{
    if (!CheckOpenProject())
        return;
    const auto chosen = m_context.services.commonDialogs.showOpen(
        {.DialogTitle = QStringLiteral("Open Project File"), .Filter = projectFilter(), .InitDir = startFolder()});
    if (chosen && !chosen->fileName.isEmpty())
        open(chosen->fileName);
}

bool ProjectFileCtrl::CheckOpenProject()
{
    if (!isOpen())
        return true;
    if (m_context.services.messageBoxes.show(projectOpenQuestion()) == MessageAnswer::Yes)
        return SaveProject(); // its lists stay until the other project takes their place
    AskCloseProject();
    return true;
}

void ProjectFileCtrl::OpenProject(const QString &path)
{
    // From the dialog for documents, too, changes are not to go without a word.
    if (m_page && (!m_context.state.project.ProjectChanged || CheckOpenProject()))
        open(path);
}

void ProjectFileCtrl::open(const QString &path)
{
    begin();
    m_page->clearLists();
    m_context.state.project.forget();
    try {
        const FileContents file = m_context.services.files.readAll(path);
        if (file.error) {
            CloseProject(); // what was open is cleared already: nothing of it may be written to its file any more
            failWith(*file.error);
            return;
        }
        const ProjectReading reading = readProjectFile(decodeOwnFile(file.bytes));
        takeReading(reading);
        if (reading.verdict == ProjectReading::Verdict::Accepted)
            showOpened(path);
        else
            refuse(reading.verdict == ProjectReading::Verdict::Newer ? newerBox(path) : invalidBox(path));
    } catch (const std::bad_alloc &) {
        CloseProject();
        failWith({.code = OutOfMemoryError, .systemError = 0, .description = {}});
    }
}

void ProjectFileCtrl::takeReading(const ProjectReading &reading)
{
    ProjectState &project = m_context.state.project;
    project.SiteName = reading.siteName.value_or(QString());
    project.SiteAuthor = reading.siteAuthor.value_or(QString());
    m_page->setListsEnabled(true);
    for (const ProjectFileLine &line : reading.files)
        add(line.path, line.isEditorFile); // a file that is listed twice is dropped without a word
}

void ProjectFileCtrl::refuse(const MessageBox &box)
{
    m_context.services.messageBoxes.show(box);
    CloseProject();
    m_context.mainWindow->setEnabled(true);
}

void ProjectFileCtrl::showOpened(const QString &path)
{
    m_page->setPath(path);
    setProjectCommandsEnabled(true);
    m_context.mainWindow->showTaskManagerPane();
    settings::write(m_context.services.settings, settings::LastProject, path);
    m_context.mainWindow->setEnabled(true);
    m_context.mainWindow->showProjectPage(true);
    m_context.state.project.ProjectChanged = false;
    m_context.screenPointer.setMousePointer(PointerShape::Default);
}

bool ProjectFileCtrl::write(const QString &path, const QString &text)
{
    const auto error = m_context.services.files.writeWhole(path, encodeOwnFile(text));
    if (error)
        failWith(*error);
    return !error;
}

bool ProjectFileCtrl::SaveProject()
{
    if (!isOpen())
        return false;
    begin();
    const ProjectState &project = m_context.state.project;
    const QString path = m_page->path();
    if (!write(path, projectFileText({.siteName = project.SiteName,
                                      .siteAuthor = project.SiteAuthor,
                                      .editorFiles = keysOf(editorFiles()),
                                      .otherFiles = keysOf(otherFiles())})))
        return false;
    selectFirst(*m_page->lstEditorFiles);
    selectFirst(*m_page->lstOtherFiles);
    settings::write(m_context.services.settings, settings::LastProject, path);
    m_context.state.project.ProjectChanged = false;
    finish();
    return true;
}

bool ProjectFileCtrl::CreateProject(const QString &path, const QString &siteName, const QString &siteAuthor)
{
    m_context.screenPointer.setMousePointer(PointerShape::Hourglass);
    if (!write(path, projectFileText({.siteName = siteName, .siteAuthor = siteAuthor})))
        return false;
    m_page->clearLists();
    m_page->setListsEnabled(true);
    m_page->setPath(path);
    // Name and author stand in the file; they are the project's from its next opening on.
    m_context.state.project.forget();
    setProjectCommandsEnabled(true);
    return true;
}

void ProjectFileCtrl::AskCloseProject()
{
    if (m_context.services.messageBoxes.show(closeQuestion()) == MessageAnswer::Yes)
        CloseProject();
}

void ProjectFileCtrl::CloseProject()
{
    m_context.screenPointer.setMousePointer(PointerShape::Hourglass);
    m_page->setListsEnabled(false);
    m_page->clearLists();
    m_page->setNoPath();
    m_context.mainWindow->showProjectPage(false);
    m_context.state.project.forget();
    setProjectCommandsEnabled(false);
    m_context.screenPointer.setMousePointer(PointerShape::Default);
}
