#pragma once

#include <QIcon>
#include <QObject>

class MainWindow;
class TabStrip;
class QWidget;

/// Shows which documents hold unsaved text: by a dot at the icon of their tab, and by the mark that the desktop uses
/// for it in the title of their window. The captions themselves stay as they are.
class DocumentMarks final : public QObject
{
    Q_OBJECT
public:
    DocumentMarks(QWidget &window, TabStrip &tabs, MainWindow &mainWindow);

    /// Brings the marks up to date; it costs nothing where none has changed. Runs whenever the program comes to rest.
    void update();

private:
    void drawIcons();

    QWidget &m_window;
    TabStrip &m_tabs;
    MainWindow &m_mainWindow;
    QIcon m_plain;
    QIcon m_dotted;
    qint64 m_palette = 0; ///< the colours that the icons are drawn in
};
