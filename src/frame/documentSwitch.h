#pragma once

#include <QList>
#include <QObject>

class Document;
class MainWindow;
class QAction;
class QActionGroup;
class QMenu;
class QWidget;

/// The ways from one open document to another that the keyboard and the Window menu offer.
class DocumentSwitch final : public QObject
{
    Q_OBJECT
public:
    /// Ctrl+Tab and Ctrl+F6 in the window bring the next open document to the front, with Shift the one before. The
    /// menu lists them below what it has, as `mnuWindowDocument(1)` and so on.
    DocumentSwitch(QWidget &window, QMenu &menu, MainWindow &mainWindow);

    /// Fills the menu anew.
    void list();

private:
    void addKeys(QWidget &window, const QStringList &keys, int by);
    void step(int by);
    void show(Document &document);

    QMenu &m_menu;
    MainWindow &m_mainWindow;
    QActionGroup *m_choices;    ///< one of the documents is the active one
    QList<QAction *> m_entries; ///< of the menu, with the line above them
};
