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

/// All keys, in the order of the list below.
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

/// Writes the first-run values of the keys that hold nothing yet, in the fixed order of their first writing.
void writeFirstRunDefaults(SettingsStore &store, const QString &appPath);

/// The name in the store, with the number put in.
QString nameOf(const Key &key, int number = 0);

extern const Key AddMetaInfo;
extern const Key AddrBarRec;
extern const Key AddrBarVisible;
extern const Key AutoSaveTime;
extern const Key AutoSaveUnsavedNotification;
extern const Key AutoSaveUse;
extern const Key BlankDFile;
extern const Key BlankDocCode;
extern const Key CodeBarVis;
extern const Key CodeSelPopups;
extern const Key CodeWinVis;
extern const Key CodebarWidth;
extern const Key ColourASPCode;
extern const Key ColourCodeAttribute;
extern const Key ColourCodeComment;
extern const Key ColourCodeHyperlink;
extern const Key ColourCodeSyntax;
extern const Key ColourCodeTag;
extern const Key ColourCodeURL;
extern const Key ColourCodeUpdateTime;
extern const Key ColourCodeValue;
extern const Key ColourLayoutEmail;
extern const Key ColourLayoutLocated;
extern const Key ColourLayoutNotLocated;
extern const Key ColourLayoutURL;
extern const Key CurrentVersion;
extern const Key CustomColour;
extern const Key DocSelBarVis;
extern const Key ExcludeBasePath;
extern const Key FirstHelp;
extern const Key HotTrackingFiles;
extern const Key InstallAddInsDialogFilter;
extern const Key LayoutLocatedColour;
extern const Key MaintainIndent;
extern const Key NetPathNaming;
extern const Key PagePreview;
extern const Key ProgramStarts;
extern const Key SaveSettingsOnExit;
extern const Key ShowAddFileToProjectAnswer;
extern const Key ShowAddFileToProjectQuestion;
extern const Key SplitEditPreview;
extern const Key StatusBarVis;
extern const Key TaskManagerAlignLeft;
extern const Key TipOfTheDay;
extern const Key WelcomeScreen;
extern const Key WinHeight;
extern const Key WinLeft;
extern const Key WinTop;
extern const Key WinWidth;
extern const Key WinState;
extern const Key WordWrap;
extern const Key DialogNetPathNaming; ///< `NetPathNaming` as the hyperlink, video and sound dialogs keep it
extern const Key CodeLibDir;
extern const Key FTPTransfer;
extern const Key MainAppDir;
extern const Key Templates;
extern const Key WorkingDir;
extern const Key RecentFile;
extern const Key RecentWelcome;
extern const Key LastProject;
extern const Key DontShowPreviewUnsavedFile;
extern const Key AddInsAvailable;
extern const Key AddInPath;
extern const Key AddInName;
extern const Key AddInShow;
extern const Key BarNewRow;
extern const Key BarWidth;
} // namespace settings
