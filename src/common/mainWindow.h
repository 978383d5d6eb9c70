#pragma once

#include "common/document.h"

#include <QList>

/// The main window as the other subsystems know it; its form, frmMdi, is the one implementation.
class MainWindow
{
public:
    MainWindow() = default;
    MainWindow(const MainWindow &) = delete;
    MainWindow &operator=(const MainWindow &) = delete;
    virtual ~MainWindow() = default;

    /// Whether the window takes input. A flag of our own: switching it moves no focus and runs no handler.
    virtual bool Enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;

    /// The loaded documents in loading order.
    virtual QList<Document *> openDocuments() const = 0;
    /// The document whose window is the active one of the main window; nothing without documents.
    virtual Document *activeDocument() const = 0;

    qint16 OpenDocumentCount = 0;
    qint16 NextDocumentNumber = 0; ///< raised at each document's load, never lowered
    bool ExitInProgress = false;   ///< the user has agreed to leave
    bool SaveListShown = false;    ///< the exit list is loaded
    bool WordWrap = true;

    virtual void SetStatusText(const QString &text) = 0;
    virtual void SetStatusReady() = 0;
    virtual QString statusText() const = 0;
    virtual void SetDocumentControlsEnabled(bool enabled) = 0;

    // The document selector.
    virtual void addDocumentTab(const QString &key,
                                const QString &caption) = 0; ///< at the end; nothing for a known key
    virtual void removeDocumentTab(const QString &key) = 0;  ///< the first one of that key
    virtual void selectDocumentTab(const QString &key) = 0;
    virtual void showDocumentTabs(bool shown) = 0;
    virtual void showDocumentSelector(bool shown) = 0;

    virtual void setWordWrapChecked(bool checked) = 0;
    virtual void clearStructureTree() = 0;
};
