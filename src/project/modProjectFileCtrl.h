#pragma once

#include "common/siteProject.h"

#include <QPointer>
#include <QStringList>

struct FileError;
struct MessageBox;
struct ProgramContext;
struct ProjectReading;
class ListView;
class ProjectPage;
class QComboBox;

/// The two lists of the open project that a dialog offers paths from.
enum class ProjectFiles {
    Images = 0, ///< the pictures among the other files
    Pages = 1,  ///< the pages among the editor files
};

/// Adds the open project's files of that kind to the combo's list, by their full paths and in the project's order.
/// Without a project nothing is added.
void FillProjectFileList(ProgramContext &context, ProjectFiles kind, QComboBox &combo);

/// The rows of a file dialog for project files.
QString projectFilter();

/// The life of the open project: its file, its lists and its commands. The lists and the path on the page are the
/// project itself; its name, its author and whether it has changed stand in the state that all forms share.
class ProjectFileCtrl final : public SiteProject
{
public:
    explicit ProjectFileCtrl(ProgramContext &context);

    /// Takes the project's page of a newly loaded main window, with no project open.
    void setPage(ProjectPage *page);

    bool isOpen() const override;
    QString path() const override;
    QList<ProjectItem> editorFiles() const override;
    QList<ProjectItem> otherFiles() const override;
    QList<int> selectedEditorFiles() const override;
    void AddFileToProject(const QString &path, bool isEditorFile) override;
    void OpenProject(const QString &path) override;

    void OpenProjectDialog();
    /// False if the file could not be written, which the user has been told.
    bool SaveProject();
    void AskCloseProject();
    void CloseProject();
    /// What comes before another project is opened or made: asks what is to become of the open one. False if it was to
    /// be saved and could not be.
    bool CheckOpenProject();
    /// Writes a new project without files and opens it. False if it could not be written, which the user has been told.
    bool CreateProject(const QString &path, const QString &siteName, const QString &siteAuthor);

    void AddEditorFile();
    void AddOtherFile();
    /// Adds files that were chosen in a dialog or dropped on a list.
    void AddFiles(const QStringList &paths, bool editorFiles);
    void RemoveEditorFile();
    void RemoveOtherFile();

private:
    enum class Adding { Added, Listed, NotAdded };
    Adding add(const QString &path, bool isEditorFile);
    void chooseFiles(bool editorFiles);
    void removeSelected(bool editorFiles);

    void open(const QString &path);
    void begin();
    void finish();
    void failWith(const FileError &error);
    void refuse(const MessageBox &box);
    void takeReading(const ProjectReading &reading);
    void showOpened(const QString &path);
    bool write(const QString &path, const QString &text);
    void setProjectCommandsEnabled(bool enabled);
    QString startFolder() const;

    ProgramContext &m_context;
    QPointer<ProjectPage> m_page;
};
