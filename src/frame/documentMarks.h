#pragma once

#include <QIcon>
#include <QObject>

class MainWindow;
struct Habits;
class TabStrip;
class QWidget;

/// Shows which documents hold unsaved text: by a dot at the icon of their tab, and by the mark that the desktop uses
/// for it in the title of their window. The captions themselves stay as they are.
/// By the rules of today a path of the user's home is shown from "~" on, as desktops do.
class DocumentMarks final : public QObject
{
    Q_OBJECT
public:
    DocumentMarks(QWidget &window, TabStrip &tabs, MainWindow &mainWindow, const Habits &habits);

    /// Brings the marks up to date; it costs nothing where none has changed. Runs whenever the program comes to rest.
    void update();

private:
    void drawIcons();

    QWidget &m_window;
    TabStrip &m_tabs;
    MainWindow &m_mainWindow;
    const Habits &m_habits;
    QIcon m_plain;
    QIcon m_dotted;
    qint64 m_palette = 0; ///< the colours that the icons are drawn in
};
