#include "files/modRecentFiles.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "files/addressHistory.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/controls.h"
#include "widgets/listView.h"

#include <QComboBox>

namespace
{
constexpr qsizetype LongestCaption = 40;

QStringList readSlots(SettingsStore &store, const settings::Key &key, int count)
{
    QStringList paths;
    for (int slot = 1; slot <= count; ++slot)
        paths.append(settings::read(store, key, slot));
    return paths;
}

void writeSlots(SettingsStore &store, const settings::Key &key, const QStringList &paths)
{
    for (int slot = 1; slot <= paths.size(); ++slot)
        settings::write(store, key, paths[slot - 1], slot);
}

bool recordsAddresses(ProgramContext &context)
{
    return settings::read(context.services.settings, settings::AddrBarRec) != u"0";
}

QString addressFile(const ProgramContext &context)
{
    return joinPath(context.services.appPath, QStringLiteral("AddrBar.dat"));
}

bool listHolds(const QComboBox &combo, const QString &address)
{
    for (int row = 0; row < combo.count(); ++row)
        if (combo.itemText(row).toLower() == address.toLower())
            return true;
    return false;
}

/// A history of a thousand addresses has a few dozen kilobytes. What is larger than this can't be one.
constexpr qint64 LargestHistory = qint64(1) << 20;

/// False if there is no history left to read.
bool historyIsOurs(ProgramContext &context)
{
    FileSystem &files = context.services.files;
    const QString path = addressFile(context);
    if (files.size(path).value_or(0) <= LargestHistory)
        return true;
    if (const std::optional<QString> aside = files.setAside(path))
        context.state.setAside += *aside;
    return false;
}

bool appendToHistory(ProgramContext &context, const QString &address)
{
    FileSystem &files = context.services.files;
    const QString path = addressFile(context);
    const FileContents old = files.readAll(path);
    if (old.error && files.exists(path)) // what cannot be read is not to be replaced
        return false;
    return !files.writeWhole(path, withAddress(old.bytes, address));
}
} // namespace

QString recentFileCaption(const QString &path)
{
    if (path.size() <= LongestCaption)
        return path;
    return path.first(3) + QStringLiteral(" ... ") + FileNameOnly(path).left(LongestCaption);
}

QStringList withRecentFile(QStringList paths, const QString &path)
{
    const qsizetype standing = paths.indexOf(path);
    if (standing < 0)
        paths.removeLast();
    else
        paths.removeAt(standing);
    paths.prepend(path);
    return paths;
}

QStringList recentFiles(SettingsStore &store)
{
    QStringList paths = readSlots(store, settings::RecentFile, RecentFileCount) +
                        readSlots(store, settings::RecentWelcome, WelcomeFileCount);
    paths.removeAll(QString());
    paths.removeDuplicates();
    return paths;
}

void LoadRecentFilesMenu(ProgramContext &context)
{
    QStringList captions;
    for (const QString &path : readSlots(context.services.settings, settings::RecentFile, RecentFileCount))
        captions.append(recentFileCaption(path));
    context.mainWindow->showRecentFiles(captions);
}

void AddToRecentFiles(ProgramContext &context, const QString &path)
{
    SettingsStore &store = context.services.settings;
    AddToWelcomeList(store, path);
    const QStringList paths = readSlots(store, settings::RecentFile, RecentFileCount);
    writeSlots(store, settings::RecentFile, withRecentFile(paths, path));
    LoadRecentFilesMenu(context);
}

void AddToWelcomeList(SettingsStore &store, const QString &path)
{
    QStringList paths = readSlots(store, settings::RecentWelcome, WelcomeFileCount);
    paths.removeLast();
    paths.prepend(path);
    writeSlots(store, settings::RecentWelcome, paths);
}

void LoadWelcomeRecentList(SettingsStore &store, ListView &lstRecent)
{
    constexpr int FileIcon = 1;
    constexpr int ProjectIcon = 2;
    const auto add = [&lstRecent](const QString &path, int icon) {
        ListRow row{.key = path, .text = FileNameOnly(path), .smallIcon = icon, .subItems = {path}};
        if (path.isEmpty() || lstRecent.addRow(row))
            return;
        row.key.clear(); // it is in the list already
        lstRecent.addRow(row);
    };
    add(settings::read(store, settings::LastProject), ProjectIcon);
    for (const QString &path : readSlots(store, settings::RecentWelcome, WelcomeFileCount))
        add(path, FileIcon);
    lstRecent.fitFirstColumn();
}

bool ClearAddressHistory(ProgramContext &context)
{
    if (const std::optional<FileError> error =
            context.services.files.writeWhole(addressFile(context), QByteArrayLiteral("\r\n"))) {
        context.files->FileErrors(error->code, error->description);
        return false;
    }
    return true;
}

void LoadAddressHistory(ProgramContext &context, QComboBox &combo)
{
    if (!recordsAddresses(context) || !historyIsOurs(context))
        return;
    const FileContents history = context.services.files.readAll(addressFile(context));
    if (!history.error)
        ui::addRows(combo, addressesOf(history.bytes));
}

void RecordAddress(ProgramContext &context, QComboBox &combo)
{
    RecordAddress(context, combo, combo.currentText());
}

void RecordAddress(ProgramContext &context, QComboBox &combo, const QString &address)
{
    if (!recordsAddresses(context) || address.isEmpty() || listHolds(combo, address))
        return;
    if (appendToHistory(context, address))
        ui::addRows(combo, {address});
}
