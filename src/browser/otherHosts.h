#pragma once

#include <QString>

class SettingsStore;

/// Whether the preview shows pictures, styles and scripts of other hosts: off, until the user allows it for a folder.
namespace otherHosts
{
/// The folder that a page of that path belongs to; none for a page without a file.
QString folderOf(const QString &path);
bool areShown(SettingsStore &settings, const QString &folder);
void setShown(SettingsStore &settings, const QString &folder, bool shown);
} // namespace otherHosts
