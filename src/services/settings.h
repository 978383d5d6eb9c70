#pragma once

#include <QString>
#include <span>

class SettingsStore;

/// The program's preferences: the one table of their keys, and how each is read and written.
namespace settings
{
inline constexpr const char *MainApp = "QWRK77XE";
inline constexpr const char *SecondApp = "QWRK77"; ///< holds its own value of one option for some of the dialogs

/// How a key spells true and false.
enum class Spelling {
    Text,       ///< no Boolean
    Word,       ///< "True" and "False" in any case
    ExactTrue,  ///< on only as "True"
    ExactFalse, ///< off only as "False"
    LowerFalse, ///< off only as "false"
    One,        ///< on only as "1"
    NotZero,    ///< off only as "0"
};

/// One key of the store. A read of what is not stored gives the fallback.
struct Key {
    const char *name; ///< "#" stands for the number in a numbered key
    const char *app = MainApp;
    const char *section = "Settings";
    const char *fallback = "";      ///< what a read supplies
    const char *firstRun = nullptr; ///< what the first start writes; "<AppPath>" is the program's folder
    Spelling spelling = Spelling::Text;
};

/// All keys, in the order of their list in settingsKeys.h.
std::span<const Key> all();

/// The stored text, or the key's fallback. `number` replaces the "#" of a numbered key.
QString read(SettingsStore &store, const Key &key, int number = 0);
/// The stored text, empty where nothing is stored, whatever the key's fallback.
QString readStored(SettingsStore &store, const Key &key, int number = 0);
/// Reads by the key's spelling.
bool isOn(SettingsStore &store, const Key &key);

void write(SettingsStore &store, const Key &key, const QString &value, int number = 0);
/// Writes a Boolean as the key spells it: "1" and "0", or "True" and "False".
void writeBoolean(SettingsStore &store, const Key &key, bool on);

/// Whether a preview shows an unsaved document by a temporary copy; otherwise the document is saved first.
bool previewsByCopy(SettingsStore &store);

/// Writes the first-run values of the keys that hold nothing yet, in the order of the list.
void writeFirstRunDefaults(SettingsStore &store, const QString &appPath);

/// The name in the store, with the number put in.
QString nameOf(const Key &key, int number = 0);

#define KEY(constant, ...) inline constexpr Key constant{__VA_ARGS__};
#include "services/settingsKeys.h"
} // namespace settings
