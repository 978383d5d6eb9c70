#pragma once

#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "frame/application.h"
#include "services/commonDialogs.h"

#include <QTemporaryDir>
#include <functional>
#include <memory>

class Document;
class QWidget;

/// The program with a new document on show, over an empty home; for as long as the object lives.
class RunningProgram
{
public:
    /// `prepare` is given the program's folder before the start, to put files into it.
    explicit RunningProgram(const std::function<void(const QString &)> &prepare = {});

    Application &program() { return m_program; }
    Document *document() { return m_program.context().mainWindow->activeDocument(); }
    /// The edit surface of the active document.
    QWidget *surface();
    QString home() const { return m_home.path(); }
    /// Lets everything that waits happen, painting included.
    static void settle();
    /// Presses and releases a key over the surface, and settles.
    void press(Qt::Key key, const QString &text);

private:
    /// Leaves every dialog at once.
    class NoDialogs final : public CommonDialogs
    {
    public:
        std::optional<FileDialogResult> showOpen(const FileDialogRequest &) override { return {}; }
        std::optional<FileDialogResult> showSave(const FileDialogRequest &) override { return {}; }
        std::optional<QString> showFolder(const QString &, const QString &) override { return {}; }
        std::optional<ColourValue> showColour(ColourValue) override { return {}; }
        std::optional<FontChoice> showFont(const FontChoice &) override { return {}; }
        std::optional<int> showPrint() override { return {}; }
    };

    QTemporaryDir m_home;
    NoDialogs m_dialogs;
    std::unique_ptr<DesktopServices> m_services;
    Application m_program;
};
