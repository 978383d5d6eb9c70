#pragma once

#include <QString>

class SettingsStore;

/// The user names that were used with servers, never the passwords.

/// The name that was last used with the server of that address; empty if none was.
QString userNameFor(SettingsStore &store, const QString &address);
/// Keeps the name; nothing for an empty one, or where the user wants no addresses kept. The server used longest ago is
/// forgotten.
void rememberUserName(SettingsStore &store, const QString &address, const QString &name);
