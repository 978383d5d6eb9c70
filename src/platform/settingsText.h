#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <utility>

/// One application's settings: section and key lead to the value.
using SettingsMap = QMap<std::pair<QString, QString>, QString>;

/// The settings as a file holds them: UTF-8, each in a line of its own that needs no other, "section/key=value", so
/// that damage to one line leaves the rest. Breaks, controls and the halves of surrogate pairs are escapes.
QByteArray settingsText(const SettingsMap &settings);

/// What can be read of such a file; of two lines for the same key the later one counts.
SettingsMap parseSettings(const QByteArray &bytes);
