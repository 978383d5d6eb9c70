#pragma once

#include <QString>
#include <QWidget>

class ListView;
class QLabel;
class QLineEdit;
struct ListRow;

/// What stands in place of the open project's path while there is none.
inline constexpr QLatin1String NoProject("(no project open)");

/// The page of the open project in the Task Manager Pane. Its two lists and the path above them are the project.
class ProjectPage final : public QWidget
{
    Q_OBJECT
public:
    explicit ProjectPage(QWidget *parent = nullptr);

    /// What txtPrjPath shows: "(no project open)" without a project.
    QString path() const;
    bool isOpen() const { return path() != NoProject; }
    void setPath(const QString &path); ///< the path of the project that is open from now on
    void setNoPath();
    /// The look of a project that is open, and of none.
    void setListsEnabled(bool enabled);
    void clearLists();

    ListView &list(bool editorFiles) const { return editorFiles ? *lstEditorFiles : *lstOtherFiles; }

    ListView *lstEditorFiles = nullptr;
    ListView *lstOtherFiles = nullptr;

Q_SIGNALS:
    void popupWanted(const QString &menu, const QPoint &position); ///< a pop-up menu, at a point of the screen
    void fileChosen(const QString &path, bool isEditorFile);       ///< by a double click or by Enter
    void removeWanted(bool editorFiles);                           ///< the Delete key was pressed in the list
    void filesDropped(const QStringList &paths, bool editorFiles);

private:
    ListView *fileList(const QString &name, const QString &popup, bool editorFiles);

    QLabel *lblProjectPath = nullptr;
    QLineEdit *txtPrjPath = nullptr;
};
