#pragma once

#include "services/settingsStore.h"

#include <map>
#include <memory>
#include <utility>

/// The settings as files of one folder, one for each application name, shared with the other programs that run.
///
/// A change is added to the file at once, as one step and under a lock, so that nobody's other keys are lost. A value
/// that cannot be written holds for this run and goes along with the next write that can be made. Writes do not wait
/// for the disk but when the store goes.
class SettingsFiles final : public SettingsStore
{
public:
    explicit SettingsFiles(const QString &folderOfFiles);
    ~SettingsFiles() override;

    QString GetSetting(const QString &app, const QString &section, const QString &key,
                       const QString &fallback) override;
    void SaveSetting(const QString &app, const QString &section, const QString &key, const QString &value) override;
    void DeleteSetting(const QString &app, const QString &section, const QString &key) override;
    QStringList takeSetAside() override { return std::exchange(m_setAside, {}); }

private:
    class File;
    File &fileOf(const QString &app);

    QString folder;
    QStringList m_setAside;
    std::map<QString, std::unique_ptr<File>> files;
};
