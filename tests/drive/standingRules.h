#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QMdiSubWindow;

namespace drive
{
class Stage;
struct Line;

/// What must hold after every command of every script, whatever it is about: what a user would see at a glance and no
/// script asks for. The script fails on the first that does not.
///
/// - The active document's surface (or preview, where that is in front) is on show, as large as its pane gives it,
///   inside its window.
/// - Where the documents fill their area, the active one goes on filling it, until the script arranges the windows.
/// - Its surface is high enough to write in, unless the script has dragged the divider under it.
/// - Each document has a tab, and that of the active one is selected.
/// - The keyboard is in a control that is on show, in the active document if it is in one; and in a preview only where
///   the script has put it there.
/// - No form is off the screen.
class StandingRules
{
public:
    /// Takes note of what the command may change.
    void enter(Stage &stage, const Line &line);
    void check(Stage &stage);

private:
    void watchArranging(QWidget &mainWindow);
    void checkDocument(Stage &stage, QMdiSubWindow &window);
    void checkFilling(Stage &stage, QMdiSubWindow &window);
    void checkFocus(Stage &stage, QMdiSubWindow *window);
    void checkPreviewFocus(Stage &stage, QWidget &focused);
    void checkTabs(Stage &stage, const QWidget &mainWindow);
    void checkForms(Stage &stage);

    bool m_arranges = false; ///< the command is one that may change the windows' places
    QObject m_onArranging;
    QPointer<QWidget> m_watched;         ///< the main window whose commands are looked at
    bool m_dragsDivider = false;         ///< the script has had the divider of a document under the mouse
    bool m_pointsAtPreview = false;      ///< the command may move the keyboard into a preview
    bool m_usesMouse = false;            ///< the line moves or presses the mouse
    bool m_filled = false;               ///< the active document filled the area after the command before
    QList<QPointer<QWidget>> m_previews; ///< those that the script has put the keyboard into
};
} // namespace drive
