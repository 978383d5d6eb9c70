#pragma once

#include <QString>
#include <QStringList>

/// The user's preferences: application name, section and key lead to a text. Every value is text, any text.
///
/// Nothing here fails: a key that is missing or cannot be read gives the default, and a value that cannot be stored
/// is passed over. Running programs share the store; the last writer of a key wins.
class SettingsStore
{
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;
    virtual ~SettingsStore() = default;

    virtual QString GetSetting(const QString &app, const QString &section, const QString &key,
                               const QString &fallback = QString()) = 0;
    virtual void SaveSetting(const QString &app, const QString &section, const QString &key, const QString &value) = 0;
    virtual void DeleteSetting(const QString &app, const QString &section, const QString &key) = 0;

    /// Files that were set aside since the last call, under their new paths: they could not be the program's own.
    virtual QStringList takeSetAside() { return {}; }
};
