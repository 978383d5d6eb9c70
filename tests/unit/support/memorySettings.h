#pragma once

#include "services/settingsStore.h"

#include <QMap>
#include <QStringList>

/// A settings store that lives in memory.
class MemorySettings final : public SettingsStore
{
public:
    QString GetSetting(const QString &app, const QString &section, const QString &key,
                       const QString &fallback = {}) override
    {
        return m_values.value({app, section, key}, fallback);
    }
    void SaveSetting(const QString &app, const QString &section, const QString &key, const QString &value) override
    {
        m_values.insert({app, section, key}, value);
    }
    void DeleteSetting(const QString &app, const QString &section, const QString &key) override
    {
        m_values.remove({app, section, key});
    }
    qsizetype count() const { return m_values.size(); }

private:
    QMap<QStringList, QString> m_values;
};
