#include "extensions/modAddIns.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "forms/programContext.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"

#include <QMap>
#include <limits>

namespace
{
/// Entries of a menu are numbered in 16 bits: an add-in beyond that has none, whatever the settings say.
constexpr int LargestNumber = 32767;

int highestNumber(SettingsStore &store)
{
    constexpr int MostThatCanFollow = std::numeric_limits<int>::max() - 1;
    return qBound(0, settings::read(store, settings::AddInsAvailable).toInt(), MostThatCanFollow);
}

/// The name under which a program's add-in is kept; a file with nothing before its dot gives the whole.
QString nameOf(const QString &program)
{
    const QString file = FileNameOnly(program);
    const qsizetype dot = file.lastIndexOf(u'.');
    return dot > 0 ? file.first(dot) : file;
}

void forget(SettingsStore &store, const settings::Key &key, int number)
{
    store.DeleteSetting(QString::fromLatin1(key.app), QString::fromLatin1(key.section), settings::nameOf(key, number));
}
} // namespace

QList<AddIn> installedAddIns(SettingsStore &store)
{
    QList<AddIn> found;
    const int highest = qMin(highestNumber(store), LargestNumber);
    for (int number = 1; number <= highest; ++number) {
        const QString name = settings::read(store, settings::AddInName, number);
        if (!name.isEmpty())
            found.append({number, name, settings::read(store, settings::AddInShow, number) != u"0"});
    }
    return found;
}

void installAddIn(SettingsStore &store, const QString &program)
{
    const int number = highestNumber(store) + 1;
    settings::write(store, settings::AddInsAvailable, QString::number(number));
    settings::write(store, settings::AddInPath, program, number);
    settings::write(store, settings::AddInName, nameOf(program), number);
    showAddIn(store, number, true);
}

void removeAddIn(SettingsStore &store, int number)
{
    forget(store, settings::AddInName, number);
    forget(store, settings::AddInShow, number);
    forget(store, settings::AddInPath, number);
}

void showAddIn(SettingsStore &store, int number, bool shown)
{
    settings::write(store, settings::AddInShow, shown ? QStringLiteral("1") : QStringLiteral("0"), number);
}

void StartAddIn(ProgramContext &context, int index)
{
    if (index == 0)
        return;
    SettingsStore &store = context.services.settings;
    if (!context.services.launcher.start(settings::read(store, settings::AddInPath, index)))
        tellAddInFailed(context, settings::read(store, settings::AddInName, index));
}

void tellAddInFailed(ProgramContext &context, const QString &name)
{
    context.services.messageBoxes.show(
        {.title = QStringLiteral("Add-In Error"),
         .text = QStringLiteral("An error occurred while trying to load the ") + name + QStringLiteral(" Add-In."),
         .icon = MessageIcon::None,
         .buttons = MessageButtons::OK});
}

void FillAddInMenu(ProgramContext &context)
{
    QMap<int, QString> captions;
    for (const AddIn &addIn : installedAddIns(context.services.settings))
        if (addIn.shown)
            captions.insert(addIn.number, addIn.name + QStringLiteral("..."));
    context.mainWindow->showAddIns(captions);
}
