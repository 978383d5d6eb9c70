#pragma once

#include "forms/programContext.h"

#include <QObject>
#include <QString>

class LocalPage;
class NodeTree;
class ProjectPage;
class QTabBar;
class QVBoxLayout;
class QWidget;
class SidePane;

/// The Task Manager Pane of the main window: the pages for the codes, the open project, the document's structure and
/// the local files, one a tab.
class TaskManagerPane final : public QObject
{
    Q_OBJECT
public:
    /// Builds the pane's controls; they belong to the widget of the pane.
    explicit TaskManagerPane(ProgramContext &context);

    SidePane *picProject() const { return m_picProject; }
    ProjectPage *projectPage() const { return m_project; }
    LocalPage *localPage() const { return m_local; }
    enum PageNumber { CodesTab, ProjectTab, StructureTab, LocalTab };
    int page() const; ///< the page on show
    void showPage(int page);
    /// The control of the page on show that the keyboard goes to.
    QWidget *pageControl() const;
    /// Lists the files of the local folder again.
    void refreshLocalFiles();

    NodeTree *treCodes = nullptr;
    NodeTree *treStructure = nullptr;

Q_SIGNALS:
    void closeChosen();
    void popupWanted(const QString &menu, const QPoint &position);

private:
    QWidget *titleBar();
    void addPage(QVBoxLayout &layout, int page, QWidget *contents);
    void passKeys();
    void tabCodeWindow_Click();

    ProgramContext &m_context;
    SidePane *m_picProject = nullptr;
    QTabBar *tabCodeWindow = nullptr;
    ProjectPage *m_project = nullptr;
    LocalPage *m_local = nullptr;
};
