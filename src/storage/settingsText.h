#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <optional>
#include <utility>

/// One application's settings: section and key lead to the value.
using SettingsMap = QMap<std::pair<QString, QString>, QString>;

/// The settings as a file holds them: UTF-8, each in a line of its own that needs no other, "section/key=value", so
/// that damage to one line leaves the rest. Breaks, controls and the halves of surrogate pairs are escapes. Of two
/// lines for the same key the later one counts; "-section/key" takes the key away.
QByteArray settingsText(const SettingsMap &settings);

/// One such line with its break; without a value, the one that takes the key away.
QByteArray settingLine(const std::pair<QString, QString> &key, const std::optional<QString> &value);

/// What can be read of such a file.
SettingsMap parseSettings(const QByteArray &bytes);
