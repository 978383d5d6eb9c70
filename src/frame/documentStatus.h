#pragma once

#include "common/encodings.h"

#include <QFont>
#include <QObject>

class Document;
class MainWindow;
class QLabel;
class QMenu;
class QStatusBar;
class QToolButton;

/// What the status bar tells of the active document beside the message: where the caret stands, and in which encoding
/// and with which line end the file is written. Both are chosen there, for the next save.
class DocumentStatus final : public QObject
{
    Q_OBJECT
public:
    DocumentStatus(QStatusBar &bar, MainWindow &mainWindow);

    /// The active document's encoding and line end as a text; empty without a document.
    void showFormat(const QString &text);
    /// Tells anew where the caret stands; it costs nothing where it has not moved. Runs whenever the program comes to
    /// rest.
    void update();

private:
    void showPlace(const QString &text);
    void showMenu();
    void fillMenu();
    void addChoice(const QString &text, const FileFormat &format);
    void choose(const FileFormat &format);

    MainWindow &m_mainWindow;
    QLabel *m_place;
    QFont m_fitted; ///< for which m_place has its size
    QToolButton *m_format;
    QMenu *m_menu;
};

/// Where the document's caret stands: its line and its column, both from 1.
QString caretPlaceText(const Document &document);

/// How the document is going to be written by the Save command.
FileFormat formatOfNextSave(const Document &document);

/// Has the document's next save write it in that format. False, and nothing changed, where the encoding has no place
/// for all its characters.
bool chooseFormat(Document &document, const FileFormat &format);
