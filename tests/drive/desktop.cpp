#include "drive/desktop.h"

#include "common/paths.h"
#include "desktop/stateFolder.h"
#include "drive/carriedOver.h"
#include "drive/events.h"
#include "drive/world.h"

#include <QDir>
#include <QScopedValueRollback>
#include <QStandardPaths>
#include <algorithm>

namespace drive
{
namespace
{
/// Where the program keeps its settings.
QString settingsFolder()
{
    return joinPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                    QStringLiteral("tagwrighter"));
}
} // namespace

bool ScriptedLauncher::launch(const QString &what)
{
    launched.add(what);
    if (m_refusals == 0)
        return true;
    --m_refusals;
    return false;
}

QList<ScriptedFiles::Failing>::const_iterator ScriptedFiles::waiting(const QString &path, Act act) const
{
    return std::find_if(m_failing.cbegin(), m_failing.cend(), [&](const Failing &failing) {
        return failing.act == act && QDir::cleanPath(failing.path) == QDir::cleanPath(path);
    });
}

std::optional<FileError> ScriptedFiles::failure(const QString &path, Act act)
{
    const auto found = waiting(path, act);
    if (found == m_failing.cend())
        return std::nullopt;
    const FileError error{found->code, 0, QStringLiteral("Error %1").arg(found->code)};
    m_failing.erase(found);
    return error;
}

FileContents ScriptedFiles::readAll(const QString &path)
{
    if (const auto error = failure(path, Act::Read))
        return {{}, error};
    return m_real.readAll(path);
}

FileContents ScriptedFiles::readPart(const QString &path, qint64 offset, qint64 length)
{
    if (const auto error = failure(path, Act::Read))
        return {{}, error};
    return m_real.readPart(path, offset, length);
}

std::optional<FileError> ScriptedFiles::checkReadable(const QString &path)
{
    // A bad disk or too little memory is met by the reading itself: the file can be opened.
    const auto found = waiting(path, Act::Read);
    const bool opens = found == m_failing.cend() || QList<int>{7, 57, 61, 62, 71}.contains(found->code);
    return opens ? m_real.checkReadable(path) : failure(path, Act::Read);
}

std::optional<FileError> ScriptedFiles::writeWhole(const QString &path, const QByteArray &bytes)
{
    if (auto error = failure(path, Act::Write))
        return error;
    return m_real.writeWhole(path, bytes);
}

std::optional<FileError> ScriptedFiles::writeScratch(const QString &path, const QByteArray &bytes)
{
    if (auto error = failure(path, Act::Write))
        return error;
    return m_real.writeScratch(path, bytes);
}

FolderListing ScriptedFiles::list(const QString &folder)
{
    for (const Act act : {Act::List, Act::Read})
        if (const auto error = failure(folder, act))
            return {{}, error};
    return m_real.list(folder);
}

std::optional<FileError> ScriptedFiles::makeFolder(const QString &folder)
{
    if (auto error = failure(folder, Act::Write))
        return error;
    return m_real.makeFolder(folder);
}

std::optional<FileError> ScriptedFiles::copyFile(const QString &from, const QString &to)
{
    if (auto error = failure(from, Act::Read))
        return error;
    if (auto error = failure(to, Act::Write))
        return error;
    return m_real.copyFile(from, to);
}

void ScriptedYielder::beginPass()
{
    if (m_acting) // a pass that an act has caused is not the one that the script means
        return;
    for (const Act &act : m_ofPass)
        m_missed.append({act.line, act.number, m_yields});
    m_ofPass = std::exchange(m_queued, {});
    m_yields = 0;
}

void ScriptedYielder::yield()
{
    if (m_acting)
        return;
    ++m_yields;
    const QScopedValueRollback guard(m_acting, true);
    yielded();
    const auto isDue = [this](const Act &act) { return act.number == m_yields; };
    for (auto due = std::find_if(m_ofPass.begin(), m_ofPass.end(), isDue); due != m_ofPass.end();
         due = std::find_if(m_ofPass.begin(), m_ofPass.end(), isDue)) {
        const Act act = *due;
        m_ofPass.erase(due);
        act.run();
    }
}

QList<int> ScriptedYielder::waiting() const
{
    QList<int> lines;
    for (const auto &acts : {m_ofPass, m_queued})
        for (const Act &act : acts)
            lines.append(act.line);
    return lines;
}

void ScriptedYielder::waitForEvents()
{
    constexpr int Milliseconds = 2; // a script names the waits by their number: each is to be as long as the others
    yield();
    letPass(Milliseconds);
}

QList<ScriptedYielder::MissedAct> ScriptedYielder::missed() const
{
    QList<MissedAct> all = m_missed;
    for (const Act &act : m_ofPass)
        all.append({act.line, act.number, m_yields});
    for (const Act &act : m_queued)
        all.append({act.line, act.number, std::nullopt});
    return all;
}

Desktop::Desktop(Referee &referee, const World &world, InternetTransfers &transfers, WizardServer &wizards)
    : m_realFiles(stateFolder()),
      boxes(referee),
      dialogs(referee),
      files(m_realFiles),
      m_settings(settingsFolder()),
      // The desktop's own tools are left alone: what they make of the registered files is not the program's.
      m_fileClasses(currentXdgPlaces(), [](const QString &, const QStringList &) {}),
      m_pages(m_settings, {world.app()}),
      m_pageViews(partFolders(), m_pages),
      m_systemFacts(world.app()),
      m_services{
          .messageBoxes = boxes,
          .commonDialogs = dialogs,
          .settings = m_settings,
          .files = files,
          .launcher = launcher,
          .clipboard = m_clipboard,
          .clock = clock,
          .random = random,
          .help = help,
          .timers = timers,
          .fileClasses = m_fileClasses,
          .modalLoop = modalLoop,
          .yielder = yielder,
          .pageViews = m_pageViews,
          .worker = m_worker,
          .transfers = transfers,
          .wizards = wizards,
          .printing = printing,
          .systemFacts = m_systemFacts,
          .appPath = world.app(),
          .statePath = stateFolder(),
      }
{
}

void Desktop::seed(quint32 value)
{
    m_seed = value;
    random.seed(value);
}

CarriedOver Desktop::carriedOver() const
{
    CarriedOver carried;
    carried.clock = clock.moment;
    carried.seed = m_seed;
    carried.answers = boxes.answers();
    carried.boxes = boxes.shown.all();
    carried.choices = dialogs.answers();
    carried.dialogs = dialogs.shown.all();
    carried.launched = launcher.launched.all();
    carried.refusals = launcher.refusals();
    carried.help = help.shown.all();
    carried.failing = files.failing();
    carried.disk = diskLimit();
    carried.waiting = yielder.waiting() + boxes.waiting();
    return carried;
}

void Desktop::take(const CarriedOver &carried)
{
    clock.moment = carried.clock;
    seed(carried.seed);
    for (const MessageAnswer answer : carried.answers)
        boxes.queue(answer);
    for (const DialogAnswer &answer : carried.choices)
        dialogs.queue(answer);
    for (const ScriptedFiles::Failing &failing : carried.failing)
        files.failNext(failing);
    boxes.shown.set(carried.boxes);
    dialogs.shown.set(carried.dialogs);
    launcher.launched.set(carried.launched);
    launcher.setRefusals(carried.refusals);
    help.shown.set(carried.help);
    if (carried.disk)
        limitDisk(carried.disk->folder, carried.disk->bytes);
}

QString Desktop::expanded(QString text) const
{
    return otherHost ? text.replace(QStringLiteral("%OTHERHOST%"), otherHost->name()) : text;
}
} // namespace drive
