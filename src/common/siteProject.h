#pragma once

#include <QList>
#include <QString>

/// One file of the open project, as its lists show it.
struct ProjectItem {
    QString text; ///< what the list shows
    QString key;  ///< the file's full path
};

/// The open site project as the other subsystems know it.
class SiteProject
{
public:
    SiteProject() = default;
    SiteProject(const SiteProject &) = delete;
    SiteProject &operator=(const SiteProject &) = delete;
    virtual ~SiteProject() = default;

    virtual bool isOpen() const = 0;
    /// The full path of its file; "(no project open)" without a project.
    virtual QString path() const { return {}; }
    /// The project's pages, and its other files, in the order of their lists.
    virtual QList<ProjectItem> editorFiles() const { return {}; }
    virtual QList<ProjectItem> otherFiles() const { return {}; }
    /// Which of the pages the user has selected, counted from 0, from the top.
    virtual QList<int> selectedEditorFiles() const { return {}; }
    /// Adds one file to the open project's pages, or to its other files. What stands in the way is told to the user.
    virtual void AddFileToProject(const QString &path, bool isEditorFile) = 0;
    /// Opens a project in place of the one that is open; the user is asked about that one only if it holds changes.
    /// What cannot be opened is told to the user, and leaves no project open.
    virtual void OpenProject(const QString & /*path*/) {}
};
