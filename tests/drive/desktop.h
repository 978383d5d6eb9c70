#pragma once

#include "browser/modulePageViews.h"
#include "browser/servedPages.h"
#include "desktop/desktopClipboard.h"
#include "desktop/desktopSystemFacts.h"
#include "desktop/xdgFileClasses.h"
#include "drive/answers.h"
#include "drive/otherHost.h"
#include "drive/printing.h"
#include "drive/scriptedTimers.h"
#include "services/clock.h"
#include "services/helpViewer.h"
#include "services/launcher.h"
#include "services/modalLoop.h"
#include "services/random.h"
#include "services/services.h"
#include "services/timer.h"
#include "services/worker.h"
#include "services/yielder.h"
#include "storage/localFileSystem.h"
#include "storage/settingsFiles.h"

#include <functional>

namespace drive
{
class World;
struct CarriedOver;

class ScriptedLauncher final : public Launcher
{
public:
    bool openUrl(const QString &target) override { return launch(target); }
    bool start(const QString &command) override { return launch(command); }
    void refuseNext() { ++m_refusals; }
    int refusals() const { return m_refusals; }
    void setRefusals(int refusals) { m_refusals = refusals; }

    Recorded<QString> launched;

private:
    bool launch(const QString &what);
    int m_refusals = 0;
};

class ScriptedHelp final : public HelpViewer
{
public:
    void show(const QString &topic) override { shown.add(topic); }
    void contents() override { shown.add(QStringLiteral("contents")); }
    void index() override { shown.add(QStringLiteral("index")); }

    Recorded<QString> shown;
};

/// A clock that stands until the script sets it.
class ScriptedClock final : public Clock
{
public:
    QDateTime now() override { return moment; }

    QDateTime moment = QDateTime(QDate(2026, 1, 1), QTime(12, 0));
};

/// Does to the files of the machine what the program asks for, but for what the script lets fail.
class ScriptedFiles final : public FileSystem
{
public:
    explicit ScriptedFiles(FileSystem &real) : m_real(real) {}

    enum class Act { Read, Write, List };
    /// The next act of a kind on a path fails with that code of the program's.
    struct Failing {
        QString path;
        int code = 0;
        Act act = Act::Read;
    };
    void failNext(const Failing &failing) { m_failing.append(failing); }
    const QList<Failing> &failing() const { return m_failing; }

    FileContents readAll(const QString &path) override;
    FileContents readPart(const QString &path, qint64 offset, qint64 length) override;
    std::optional<FileError> checkReadable(const QString &path) override;
    std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) override;
    std::optional<FileError> writeScratch(const QString &path, const QByteArray &bytes) override;
    bool isLink(const QString &path) override { return m_real.isLink(path); }
    bool exists(const QString &path) override { return m_real.exists(path); }
    bool isFolder(const QString &path) override { return m_real.isFolder(path); }
    bool isSameFile(const QString &a, const QString &b) override { return m_real.isSameFile(a, b); }
    std::optional<qint64> size(const QString &path) override { return m_real.size(path); }
    std::optional<FileStamp> stamp(const QString &path) override { return m_real.stamp(path); }
    std::optional<FileDetails> details(const QString &path) override { return m_real.details(path); }
    FolderListing list(const QString &folder) override;
    std::optional<FileError> makeFolder(const QString &folder) override;
    std::optional<FileError> removeFile(const QString &path) override { return m_real.removeFile(path); }
    std::optional<QString> setAside(const QString &path) override { return m_real.setAside(path); }
    std::optional<FileError> copyFile(const QString &from, const QString &to) override;

private:
    QList<Failing>::const_iterator waiting(const QString &path, Act act) const;
    std::optional<FileError> failure(const QString &path, Act act);

    FileSystem &m_real;
    QList<Failing> m_failing;
};

/// Hands a form that is shown modally to the script.
class ScriptedModalLoop final : public ModalLoop
{
public:
    void run(Form &form) override { shown(form); }

    std::function<void(Form &)> shown;
};

/// Counts the yields of long passes and acts at those that the script has named.
class ScriptedYielder final : public Yielder
{
public:
    struct Act {
        int line = 0;   ///< of the script
        int number = 0; ///< of the yield, counted from 1
        std::function<void()> run;
    };
    struct MissedAct {
        int line = 0;
        int number = 0;
        std::optional<int> yields; ///< that the pass had; nothing if there was no pass
    };

    std::function<void()> yielded = [] {}; ///< runs at every yield, in front of the acts

    void queue(const Act &act) { m_queued.push_back(act); }
    /// The lines of the acts that are still to come.
    QList<int> waiting() const;
    void beginPass() override;
    void yield() override;
    void waitForEvents() override;
    QList<MissedAct> missed() const;

private:
    std::vector<Act> m_queued; ///< for the next pass
    std::vector<Act> m_ofPass; ///< for the pass that runs
    QList<MissedAct> m_missed;
    int m_yields = 0;
    bool m_acting = false;
};

/// The desktop as a script sees it: what a user would be shown is answered and recorded, the rest is real.
class Desktop
{
public:
    Desktop(Referee &referee, const World &world, InternetTransfers &transfers, WizardServer &wizards);

    Services &services() { return m_services; }
    /// The text with the marks of what runs beside the program replaced, %OTHERHOST%.
    QString expanded(QString text) const;

    void seed(quint32 value);
    /// What of it outlives the program's process.
    CarriedOver carriedOver() const;
    void take(const CarriedOver &carried);

private:
    LocalFileSystem m_realFiles;

public:
    ScriptedBoxes boxes;
    ScriptedDialogs dialogs;
    ScriptedLauncher launcher;
    ScriptedHelp help;
    ScriptedClock clock;
    ScriptedFiles files;
    ScriptedModalLoop modalLoop;
    ScriptedYielder yielder;
    ScriptedPrinting printing;
    Random random{FirstSeed};
    ScriptedTimers timers;
    std::unique_ptr<OtherHost> otherHost; ///< once the script has started it

private:
    static constexpr quint32 FirstSeed = 1;
    quint32 m_seed = FirstSeed;
    SettingsFiles m_settings;
    DesktopClipboard m_clipboard;
    XdgFileClasses m_fileClasses;
    ServedPages m_pages;
    ModulePageViews m_pageViews;
    InlineWorker m_worker; // nothing happens by itself in a script
    DesktopSystemFacts m_systemFacts;
    Services m_services;
};
} // namespace drive
