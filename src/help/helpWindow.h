#pragma once

#include "help/helpFolder.h"
#include "help/helpNavigator.h"

#include <QMainWindow>

class HelpBrowser;
class HelpFindBar;
class Launcher;
class QAction;
class QLineEdit;
class QToolBar;

/// The window of the help. It belongs to no other window: it stays usable while a dialog of the program is up, and
/// neither its opening nor its closing does anything to the others. Closing hides it, so that it comes back in the size
/// and on the page that it was left in.
class HelpWindow final : public QMainWindow
{
    Q_OBJECT
public:
    /// The help's files stand in the first of `folders` that has them. The services outlive the window.
    HelpWindow(const QStringList &folders, FileSystem &files, Launcher &launcher);

    /// Shows a topic by its path, as in "::/topics/Index.htm", and the window above all others.
    void showTopic(const QString &topic);
    /// Shows a tab of the pane at the side; with the first page if no other is on show yet.
    void showTab(HelpNavigator::Tab tab);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QAction *command(const QString &text, const QString &icon, const QList<QKeySequence> &keys,
                     const std::function<void()> &run);
    void addMoves(QToolBar &bar);
    void addSearchField(QToolBar &bar);
    void addZoom(QToolBar &bar);
    void addHiddenCommands();
    void layOut();
    void bringUp();
    void stayUsable();
    void pageShown(const QUrl &address);
    void openOutside(const QUrl &url);
    void search(const QString &text);
    void openHit();
    void moveToNextPart();

    HelpFolder m_folder;
    Launcher &m_launcher;
    HelpNavigator *m_navigator;
    HelpBrowser *m_browser;
    HelpFindBar *m_findBar;
    QLineEdit *m_search = nullptr;
};
