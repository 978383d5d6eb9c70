#pragma once

#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "widgets/screenPointer.h"

#include <QObject>
#include <memory>
#include <optional>

class FileCommands;
class UnsavedText;
class frmMdi;
class frmSplash;
class Uploads;

/// One run of the program: it owns the forms and the variables that they share, and unwinds them at its end.
class Application final : public QObject
{
    Q_OBJECT
public:
    explicit Application(Services &services);
    ~Application() override;

    /// The entry procedure: loads the splash form and shows it. `commandLine` is the text behind the program's name, as
    /// one line, opened once the main window loads; empty for none.
    void Main(const QString &commandLine);

    /// Takes what another start of the program was given, and opens it as that one would have.
    void takeOver(const QString &commandLine);

    /// Ends the program at once: no further handler of a form runs.
    void End();
    /// Ends the program from outside, as at the end of the desktop's session: unsaved text is kept for the next start.
    void endKeepingText();
    /// Brings all unsaved text to the disk, as before the desktop's session ends.
    void keepUnsavedText();
    /// The desktop's session is about to end. Unsaved text is brought to the disk at once; with `mayAsk` the user is
    /// then asked what becomes of it, as at any end of the program, and this returns once that is answered. False where
    /// the user stays: the session is not to end.
    bool mayEndSession(bool mayAsk);
    bool hasEnded() const { return m_ended; }
    /// It has ended in order to be started anew, with this text as its command line; nothing where it has not.
    const std::optional<QString> &startedAnewWith() const { return m_startedAnewWith; }

    const QString &commandLine() const { return m_commandLine; }
    ProgramContext &context() { return m_context; }
    FormRuntime &forms() { return m_forms; }
    /// Any form of the session, loaded or not, by its name; documents are found among the loaded forms only.
    Form *form(const QString &name) const { return m_forms.find(name); }

Q_SIGNALS:
    void ended(); ///< the main window is gone, by its unload or by End

private:
    template <class T, class... Arguments>
    T &own(Arguments &&...arguments);
    void addFiles();
    void requireForms() const;
    bool hasUnsavedWork() const;
    void startAnew();

    ProgramState m_state;
    FormRuntime m_forms;
    ScreenPointer m_screenPointer;
    ProgramContext m_context;
    QString m_commandLine;
    bool m_ended = false;
    std::optional<QString> m_startedAnewWith;
    std::unique_ptr<FileCommands> m_files;
    std::unique_ptr<UnsavedText> m_unsavedText;
    std::unique_ptr<Uploads> m_uploads;
    frmMdi *m_mdi = nullptr;
    frmSplash *m_splash = nullptr;
};
