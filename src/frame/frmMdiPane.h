#pragma once

#include "forms/programContext.h"

#include <QObject>
#include <QString>

class DriveList;
class FileList;
class FolderList;
class ListView;
class NodeTree;
class QLineEdit;
class QTabBar;
class QVBoxLayout;
class QWidget;
class SidePane;

/// What stands in place of the open project's path while there is none.
inline constexpr QLatin1String NoProject("(no project open)");

/// The Task Manager Pane of the main window: the pages for the codes, the open project, the document's structure and
/// the local files, one a tab.
class TaskManagerPane final : public QObject
{
    Q_OBJECT
public:
    /// Builds the pane's controls; they belong to the widget of the pane.
    explicit TaskManagerPane(ProgramContext &context);

    SidePane *picProject() const { return m_picProject; }
    QString projectPath() const; ///< what txtPrjPath shows: "(no project open)" without a project
    enum PageNumber { CodePage, ProjectPage, StructurePage, LocalPage };
    int page() const; ///< the page on show
    void showPage(int page);
    /// The control of the page on show that the keyboard goes to.
    QWidget *pageControl() const;
    /// Lists the files of the local folder again.
    void refreshLocalFiles();

    NodeTree *treCodes = nullptr;
    NodeTree *treStructure = nullptr;
    ListView *lstEditorFiles = nullptr;
    ListView *lstOtherFiles = nullptr;

Q_SIGNALS:
    void closeChosen();
    void popupWanted(const QString &menu, const QPoint &position);

private:
    QWidget *titleBar();
    QWidget *projectPage();
    QWidget *localPage();
    void addPage(QVBoxLayout &layout, int page, QWidget *contents);
    void loadImageLists();
    void passKeys();
    void offerPopup(ListView *list, const QString &menu);
    void tabCodeWindow_Click();
    void filTempLocal_PathChange();

    ProgramContext &m_context;
    SidePane *m_picProject = nullptr;
    QTabBar *tabCodeWindow = nullptr;
    QLineEdit *txtPrjPath = nullptr;
    ListView *lstLocal = nullptr;
    DriveList *drvLocal = nullptr;
    FolderList *dirLocal = nullptr;
    FileList *filTempLocal = nullptr;
};
