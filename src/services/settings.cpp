#include "services/settings.h"

#include "common/paths.h"
#include "services/settingsStore.h"

#include <array>
#include <cmath>

namespace settings
{
namespace
{
constexpr std::array table{
#define KEY(constant, ...) constant,
#include "services/settingsKeys.h"
};
} // namespace

std::span<const Key> all()
{
    return table;
}

QString nameOf(const Key &key, int number)
{
    return QString::fromLatin1(key.name).replace(u'#', QString::number(number));
}

QString read(SettingsStore &store, const Key &key, int number)
{
    return store.GetSetting(QString::fromLatin1(key.app), QString::fromLatin1(key.section), nameOf(key, number),
                            QString::fromLatin1(key.fallback));
}

QString readStored(SettingsStore &store, const Key &key, int number)
{
    return store.GetSetting(QString::fromLatin1(key.app), QString::fromLatin1(key.section), nameOf(key, number));
}

bool isOn(SettingsStore &store, const Key &key)
{
    const QString value = read(store, key);
    switch (key.spelling) {
    case Spelling::Word:
        return value.toLower() == u"true";
    case Spelling::ExactTrue:
        return value == u"True";
    case Spelling::ExactFalse:
        return value != u"False";
    case Spelling::LowerFalse:
        return value != u"false";
    case Spelling::One:
        return value == u"1";
    case Spelling::NotZero:
        return value != u"0";
    case Spelling::Text:
        break;
    }
    return false;
}

void write(SettingsStore &store, const Key &key, const QString &value, int number)
{
    store.SaveSetting(QString::fromLatin1(key.app), QString::fromLatin1(key.section), nameOf(key, number), value);
}

void writeBoolean(SettingsStore &store, const Key &key, bool on)
{
    if (key.spelling == Spelling::One || key.spelling == Spelling::NotZero)
        write(store, key, on ? QStringLiteral("1") : QStringLiteral("0"));
    else
        write(store, key, on ? QStringLiteral("True") : QStringLiteral("False"));
}

bool previewsByCopy(SettingsStore &store)
{
    return std::floor(read(store, PagePreview).toDouble()) == 1;
}

namespace
{
QString firstRunValue(const Key &key, const QString &appPath)
{
    QString value = QString::fromLatin1(key.firstRun);
    if (!value.startsWith(QStringLiteral("<AppPath>/")))
        return value;
    return joinPath(appPath, value.mid(10));
}
} // namespace

void writeFirstRunDefaults(SettingsStore &store, const QString &appPath)
{
    for (const Key &key : table)
        if (key.firstRun && readStored(store, key).isEmpty())
            write(store, key, firstRunValue(key, appPath));
}
} // namespace settings
