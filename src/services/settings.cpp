#include "services/settings.h"

#include "common/paths.h"
#include "services/settingsStore.h"

#include <array>
#include <cmath>
#include <string_view>

namespace settings
{
namespace
{
// clang-format off
/// The table itself, one key a row: name, application, section, fallback, first-run value, spelling.
constexpr std::array table{
    Key{"AddMetaInfo", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"AddrBarRec", MainApp, "Settings", "", nullptr, Spelling::One},
    Key{"AddrBarVisible", MainApp, "Settings", "1", nullptr, Spelling::One},
    Key{"AutoSaveTime", MainApp, "Settings", "", "5", Spelling::Text},
    Key{"AutoSaveUnsavedNotification", MainApp, "Settings", "True", "True", Spelling::ExactTrue},
    Key{"AutoSaveUse", MainApp, "Settings", "", "False", Spelling::ExactTrue},
    Key{"BlankDFile", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"BlankDocCode", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"CodeBarVis", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"CodeSelPopups", MainApp, "Settings", "1", nullptr, Spelling::One},
    Key{"CodeWinVis", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"CodebarWidth", MainApp, "Settings", "4125", nullptr, Spelling::Text},
    Key{"ColourASPCode", MainApp, "Settings", "128", "128", Spelling::Text},
    Key{"ColourCodeAttribute", MainApp, "Settings", "8421376", "8421376", Spelling::Text},
    Key{"ColourCodeComment", MainApp, "Settings", "32768", "32768", Spelling::Text},
    Key{"ColourCodeHyperlink", MainApp, "Settings", "", "1", Spelling::One},
    Key{"ColourCodeSyntax", MainApp, "Settings", "", "1", Spelling::NotZero},
    Key{"ColourCodeTag", MainApp, "Settings", "8388608", "8388608", Spelling::Text},
    Key{"ColourCodeURL", MainApp, "Settings", "16711680", "16711680", Spelling::Text},
    Key{"ColourCodeUpdateTime", MainApp, "Settings", "10", "10", Spelling::Text},
    Key{"ColourCodeValue", MainApp, "Settings", "8421504", "8421504", Spelling::Text},
    Key{"ColourLayoutEmail", MainApp, "Settings", "33023", nullptr, Spelling::Text},
    Key{"ColourLayoutLocated", MainApp, "Settings", "65535", nullptr, Spelling::Text},
    Key{"ColourLayoutNotLocated", MainApp, "Settings", "65280", nullptr, Spelling::Text},
    Key{"ColourLayoutURL", MainApp, "Settings", "16776960", nullptr, Spelling::Text},
    Key{"CurrentVersion", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"#CustomColour", MainApp, "Settings", "16777215", nullptr, Spelling::Text},
    Key{"DocSelBarVis", MainApp, "Settings", "True", nullptr, Spelling::ExactFalse},
    Key{"ExcludeBasePath", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"FirstHelp", MainApp, "Settings", "false", nullptr, Spelling::Word},
    Key{"HotTrackingFiles", MainApp, "Settings", "False", nullptr, Spelling::Word},
    Key{"InstallAddInsDialogFilter", MainApp, "Settings", "All Tagwrighter Add-Ins|*.exe", nullptr, Spelling::Text},
    Key{"LayoutLocatedColour", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"MaintainIndent", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"NetPathNaming", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"PagePreview", MainApp, "Settings", "1", nullptr, Spelling::Text},
    Key{"ProgramStarts", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"SaveSettingsOnExit", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"ShowAddFileToProjectAnswer", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"ShowAddFileToProjectQuestion", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"SplitEditPreview", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"StatusBarVis", MainApp, "Settings", "True", nullptr, Spelling::ExactFalse},
    Key{"TaskManagerAlignLeft", MainApp, "Settings", "True", nullptr, Spelling::Word},
    Key{"TipOfTheDay", MainApp, "Settings", "0", nullptr, Spelling::Text},
    Key{"WelcomeScreen", MainApp, "Settings", "true", nullptr, Spelling::LowerFalse},
    Key{"WinHeight", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"WinLeft", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"WinTop", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"WinWidth", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"WinState", MainApp, "Settings", "", nullptr, Spelling::Text},
    Key{"WordWrap", MainApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"NetPathNaming", SecondApp, "Settings", "true", nullptr, Spelling::Word},
    Key{"CodeLibDir", MainApp, "AppPaths", "", "<AppPath>/CodeLibrary", Spelling::Text},
    Key{"FTPTransfer", MainApp, "AppPaths", "", nullptr, Spelling::Text},
    Key{"MainAppDir", MainApp, "AppPaths", "", nullptr, Spelling::Text},
    Key{"Templates", MainApp, "AppPaths", "", "<AppPath>/Template", Spelling::Text},
    Key{"WorkingDir", MainApp, "AppPaths", "", "<AppPath>/MyPages", Spelling::Text},
    Key{"File#", MainApp, "RecentFiles", "", nullptr, Spelling::Text},
    Key{"Welcome#", MainApp, "RecentFiles", "", nullptr, Spelling::Text},
    Key{"LastProject", MainApp, "RecentFiles", "", nullptr, Spelling::Text},
    Key{"DontShowPreviewUnsavedFile", MainApp, "Messages", "0", nullptr, Spelling::One},
    Key{"AddInsAvailable", MainApp, "AddIns", "0", nullptr, Spelling::Text},
    Key{"AddIn#Path", MainApp, "AddIns", "", nullptr, Spelling::Text},
    Key{"AddIn#Name", MainApp, "AddIns", "", nullptr, Spelling::Text},
    Key{"AddIn#Show", MainApp, "AddIns", "1", nullptr, Spelling::One},
    Key{"Bar#NewRow", MainApp, "Toolbar", "", nullptr, Spelling::Word},
    Key{"Bar#Width", MainApp, "Toolbar", "", nullptr, Spelling::Text},
};
// clang-format on

/// The row of a key; a name that no row has does not compile.
consteval Key rowOf(const char *name, const char *app = MainApp)
{
    for (const Key &key : table)
        if (std::string_view(key.name) == name && std::string_view(key.app) == app)
            return key;
    throw "no such key";
}
} // namespace

const Key AddMetaInfo = rowOf("AddMetaInfo");
const Key AddrBarRec = rowOf("AddrBarRec");
const Key AddrBarVisible = rowOf("AddrBarVisible");
const Key AutoSaveTime = rowOf("AutoSaveTime");
const Key AutoSaveUnsavedNotification = rowOf("AutoSaveUnsavedNotification");
const Key AutoSaveUse = rowOf("AutoSaveUse");
const Key BlankDFile = rowOf("BlankDFile");
const Key BlankDocCode = rowOf("BlankDocCode");
const Key CodeBarVis = rowOf("CodeBarVis");
const Key CodeSelPopups = rowOf("CodeSelPopups");
const Key CodeWinVis = rowOf("CodeWinVis");
const Key CodebarWidth = rowOf("CodebarWidth");
const Key ColourASPCode = rowOf("ColourASPCode");
const Key ColourCodeAttribute = rowOf("ColourCodeAttribute");
const Key ColourCodeComment = rowOf("ColourCodeComment");
const Key ColourCodeHyperlink = rowOf("ColourCodeHyperlink");
const Key ColourCodeSyntax = rowOf("ColourCodeSyntax");
const Key ColourCodeTag = rowOf("ColourCodeTag");
const Key ColourCodeURL = rowOf("ColourCodeURL");
const Key ColourCodeUpdateTime = rowOf("ColourCodeUpdateTime");
const Key ColourCodeValue = rowOf("ColourCodeValue");
const Key ColourLayoutEmail = rowOf("ColourLayoutEmail");
const Key ColourLayoutLocated = rowOf("ColourLayoutLocated");
const Key ColourLayoutNotLocated = rowOf("ColourLayoutNotLocated");
const Key ColourLayoutURL = rowOf("ColourLayoutURL");
const Key CurrentVersion = rowOf("CurrentVersion");
const Key CustomColour = rowOf("#CustomColour");
const Key DocSelBarVis = rowOf("DocSelBarVis");
const Key ExcludeBasePath = rowOf("ExcludeBasePath");
const Key FirstHelp = rowOf("FirstHelp");
const Key HotTrackingFiles = rowOf("HotTrackingFiles");
const Key InstallAddInsDialogFilter = rowOf("InstallAddInsDialogFilter");
const Key LayoutLocatedColour = rowOf("LayoutLocatedColour");
const Key MaintainIndent = rowOf("MaintainIndent");
const Key NetPathNaming = rowOf("NetPathNaming");
const Key PagePreview = rowOf("PagePreview");
const Key ProgramStarts = rowOf("ProgramStarts");
const Key SaveSettingsOnExit = rowOf("SaveSettingsOnExit");
const Key ShowAddFileToProjectAnswer = rowOf("ShowAddFileToProjectAnswer");
const Key ShowAddFileToProjectQuestion = rowOf("ShowAddFileToProjectQuestion");
const Key SplitEditPreview = rowOf("SplitEditPreview");
const Key StatusBarVis = rowOf("StatusBarVis");
const Key TaskManagerAlignLeft = rowOf("TaskManagerAlignLeft");
const Key TipOfTheDay = rowOf("TipOfTheDay");
const Key WelcomeScreen = rowOf("WelcomeScreen");
const Key WinHeight = rowOf("WinHeight");
const Key WinLeft = rowOf("WinLeft");
const Key WinTop = rowOf("WinTop");
const Key WinWidth = rowOf("WinWidth");
const Key WinState = rowOf("WinState");
const Key WordWrap = rowOf("WordWrap");
const Key DialogNetPathNaming = rowOf("NetPathNaming", SecondApp);
const Key CodeLibDir = rowOf("CodeLibDir");
const Key FTPTransfer = rowOf("FTPTransfer");
const Key MainAppDir = rowOf("MainAppDir");
const Key Templates = rowOf("Templates");
const Key WorkingDir = rowOf("WorkingDir");
const Key RecentFile = rowOf("File#");
const Key RecentWelcome = rowOf("Welcome#");
const Key LastProject = rowOf("LastProject");
const Key DontShowPreviewUnsavedFile = rowOf("DontShowPreviewUnsavedFile");
const Key AddInsAvailable = rowOf("AddInsAvailable");
const Key AddInPath = rowOf("AddIn#Path");
const Key AddInName = rowOf("AddIn#Name");
const Key AddInShow = rowOf("AddIn#Show");
const Key BarNewRow = rowOf("Bar#NewRow");
const Key BarWidth = rowOf("Bar#Width");

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
    const Key *order[] = {&Templates,
                          &WorkingDir,
                          &CodeLibDir,
                          &ColourCodeUpdateTime,
                          &ColourCodeTag,
                          &ColourCodeAttribute,
                          &ColourCodeValue,
                          &ColourCodeComment,
                          &ColourASPCode,
                          &ColourCodeSyntax,
                          &ColourCodeHyperlink,
                          &ColourCodeURL,
                          &AutoSaveUse,
                          &AutoSaveTime,
                          &AutoSaveUnsavedNotification};
    for (const Key *key : order)
        if (readStored(store, *key).isEmpty())
            write(store, *key, firstRunValue(*key, appPath));
}
} // namespace settings
