#include "internet/userNames.h"

#include "internet/addresses.h"
#include "services/settings.h"
#include "services/settingsStore.h"

#include <QStringList>

namespace
{
constexpr int MostKept = 20;

/// The slots' texts, "SERVER NAME", the last one used first. A server holds no blank; a name may.
QStringList readSlots(SettingsStore &store)
{
    QStringList kept;
    for (int slot = 1; slot <= MostKept; ++slot)
        kept.append(settings::read(store, settings::UploadUser, slot));
    return kept;
}

QString startOfSlot(const QString &address)
{
    return serverOf(address) + u' ';
}
} // namespace

QString userNameFor(SettingsStore &store, const QString &address)
{
    const QString start = startOfSlot(address);
    for (const QString &kept : readSlots(store))
        if (start.size() > 1 && kept.startsWith(start))
            return kept.sliced(start.size());
    return {};
}

void rememberUserName(SettingsStore &store, const QString &address, const QString &name)
{
    const QString start = startOfSlot(address);
    if (name.isEmpty() || start.size() == 1 || settings::read(store, settings::AddrBarRec) == u"0")
        return;
    QStringList kept = readSlots(store);
    kept.removeIf([&start](const QString &each) { return each.startsWith(start); });
    kept.prepend(start + name);
    for (int slot = 1; slot <= MostKept; ++slot)
        settings::write(store, settings::UploadUser, kept.value(slot - 1), slot);
}
