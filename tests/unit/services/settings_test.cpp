#include "services/settings.h"

#include "unit/support/memorySettings.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{
using settings::Spelling;

struct Row {
    const char *name;
    const char *app;
    const char *section;
    const char *fallback;
    const char *firstRun; // nullptr: the first start leaves it alone
    Spelling spelling;
};

constexpr const char *Main = "QWRK77XE";

// What the store's format promises, written out once more: names, homes, defaults and spellings are read by other
// programs and by other versions of this one.
const Row expected[] = {
    {"AddMetaInfo", Main, "Settings", "true", nullptr, Spelling::Word},
    {"AddrBarRec", Main, "Settings", "", nullptr, Spelling::One},
    {"AddrBarVisible", Main, "Settings", "1", nullptr, Spelling::One},
    {"AutoSaveTime", Main, "Settings", "", "5", Spelling::Text},
    {"AutoSaveUnsavedNotification", Main, "Settings", "True", "True", Spelling::ExactTrue},
    {"AutoSaveUse", Main, "Settings", "", "False", Spelling::ExactTrue},
    {"BlankDFile", Main, "Settings", "", nullptr, Spelling::Text},
    {"BlankDocCode", Main, "Settings", "", nullptr, Spelling::Text},
    {"CodeBarVis", Main, "Settings", "true", nullptr, Spelling::Word},
    {"CodeSelPopups", Main, "Settings", "1", nullptr, Spelling::One},
    {"CodeWinVis", Main, "Settings", "true", nullptr, Spelling::Word},
    {"CodebarWidth", Main, "Settings", "4125", nullptr, Spelling::Text},
    {"ColourASPCode", Main, "Settings", "128", "128", Spelling::Text},
    {"ColourCodeAttribute", Main, "Settings", "8421376", "8421376", Spelling::Text},
    {"ColourCodeComment", Main, "Settings", "32768", "32768", Spelling::Text},
    {"ColourCodeHyperlink", Main, "Settings", "", "1", Spelling::One},
    {"ColourCodeSyntax", Main, "Settings", "", "1", Spelling::NotZero},
    {"ColourCodeTag", Main, "Settings", "8388608", "8388608", Spelling::Text},
    {"ColourCodeURL", Main, "Settings", "16711680", "16711680", Spelling::Text},
    {"ColourCodeUpdateTime", Main, "Settings", "10", "10", Spelling::Text},
    {"ColourCodeValue", Main, "Settings", "8421504", "8421504", Spelling::Text},
    {"ColourLayoutEmail", Main, "Settings", "33023", nullptr, Spelling::Text},
    {"ColourLayoutLocated", Main, "Settings", "65535", nullptr, Spelling::Text},
    {"ColourLayoutNotLocated", Main, "Settings", "65280", nullptr, Spelling::Text},
    {"ColourLayoutURL", Main, "Settings", "16776960", nullptr, Spelling::Text},
    {"CurrentVersion", Main, "Settings", "", nullptr, Spelling::Text},
    {"#CustomColour", Main, "Settings", "16777215", nullptr, Spelling::Text},
    {"DocSelBarVis", Main, "Settings", "True", nullptr, Spelling::ExactFalse},
    {"ExcludeBasePath", Main, "Settings", "true", nullptr, Spelling::Word},
    {"FirstHelp", Main, "Settings", "false", nullptr, Spelling::Word},
    {"HotTrackingFiles", Main, "Settings", "False", nullptr, Spelling::Word},
    {"InstallAddInsDialogFilter", Main, "Settings", "All Tagwrighter Add-Ins|*.exe", nullptr, Spelling::Text},
    {"LayoutLocatedColour", Main, "Settings", "true", nullptr, Spelling::Word},
    {"MaintainIndent", Main, "Settings", "true", nullptr, Spelling::Word},
    {"NetPathNaming", Main, "Settings", "true", nullptr, Spelling::Word},
    {"PagePreview", Main, "Settings", "1", nullptr, Spelling::Text},
    {"ProgramStarts", Main, "Settings", "", nullptr, Spelling::Text},
    {"SaveSettingsOnExit", Main, "Settings", "true", nullptr, Spelling::Word},
    {"ShowAddFileToProjectAnswer", Main, "Settings", "true", nullptr, Spelling::Word},
    {"ShowAddFileToProjectQuestion", Main, "Settings", "true", nullptr, Spelling::Word},
    {"SplitEditPreview", Main, "Settings", "true", nullptr, Spelling::Word},
    {"StatusBarVis", Main, "Settings", "True", nullptr, Spelling::ExactFalse},
    {"TaskManagerAlignLeft", Main, "Settings", "True", nullptr, Spelling::Word},
    {"TipOfTheDay", Main, "Settings", "0", nullptr, Spelling::Text},
    {"WelcomeScreen", Main, "Settings", "true", nullptr, Spelling::LowerFalse},
    {"WinHeight", Main, "Settings", "", nullptr, Spelling::Text},
    {"WinLeft", Main, "Settings", "", nullptr, Spelling::Text},
    {"WinTop", Main, "Settings", "", nullptr, Spelling::Text},
    {"WinWidth", Main, "Settings", "", nullptr, Spelling::Text},
    {"WinState", Main, "Settings", "", nullptr, Spelling::Text},
    {"WordWrap", Main, "Settings", "true", nullptr, Spelling::Word},
    {"NetPathNaming", "QWRK77", "Settings", "true", nullptr, Spelling::Word},
    {"CodeLibDir", Main, "AppPaths", "", "/app/CodeLibrary", Spelling::Text},
    {"FTPTransfer", Main, "AppPaths", "", nullptr, Spelling::Text},
    {"MainAppDir", Main, "AppPaths", "", nullptr, Spelling::Text},
    {"Templates", Main, "AppPaths", "", "/app/Template", Spelling::Text},
    {"WorkingDir", Main, "AppPaths", "", "/app/MyPages", Spelling::Text},
    {"File#", Main, "RecentFiles", "", nullptr, Spelling::Text},
    {"Welcome#", Main, "RecentFiles", "", nullptr, Spelling::Text},
    {"LastProject", Main, "RecentFiles", "", nullptr, Spelling::Text},
    {"DontShowPreviewUnsavedFile", Main, "Messages", "0", nullptr, Spelling::One},
    {"AddInsAvailable", Main, "AddIns", "0", nullptr, Spelling::Text},
    {"AddIn#Path", Main, "AddIns", "", nullptr, Spelling::Text},
    {"AddIn#Name", Main, "AddIns", "", nullptr, Spelling::Text},
    {"AddIn#Show", Main, "AddIns", "1", nullptr, Spelling::One},
    {"Bar#NewRow", Main, "Toolbar", "", nullptr, Spelling::Word},
    {"Bar#Width", Main, "Toolbar", "", nullptr, Spelling::Text},
};

const settings::Key *keyOf(const Row &row)
{
    for (const settings::Key &key : settings::all())
        if (QLatin1String(key.name) == QLatin1String(row.name) && QLatin1String(key.app) == QLatin1String(row.app))
            return &key;
    return nullptr;
}

QString stored(MemorySettings &store, const Row &row)
{
    return store.GetSetting(QLatin1String(row.app), QLatin1String(row.section), QLatin1String(row.name));
}

TEST(SettingsTable, HoldsEveryKeyOnceWithItsHomeDefaultAndSpelling)
{
    EXPECT_EQ(settings::all().size(), std::size(expected));
    for (const Row &row : expected) {
        const settings::Key *key = keyOf(row);
        ASSERT_TRUE(key) << row.name;
        EXPECT_STREQ(key->section, row.section) << row.name;
        EXPECT_STREQ(key->fallback, row.fallback) << row.name;
        EXPECT_EQ(key->spelling, row.spelling) << row.name;
    }
}

TEST(SettingsTable, FirstStartFillsAnEmptyStoreAndNothingElse)
{
    MemorySettings store;
    settings::writeFirstRunDefaults(store, QStringLiteral("/app"));
    for (const Row &row : expected)
        EXPECT_EQ(stored(store, row), QString::fromLatin1(row.firstRun ? row.firstRun : "")) << row.name;
    EXPECT_EQ(store.count(), 15);
}

TEST(SettingsTable, FirstStartLeavesWhatIsStored)
{
    MemorySettings store;
    settings::write(store, settings::ColourCodeTag, QStringLiteral("255"));
    settings::write(store, settings::AutoSaveTime, QString());
    settings::writeFirstRunDefaults(store, QStringLiteral("/app"));
    EXPECT_EQ(settings::read(store, settings::ColourCodeTag), QStringLiteral("255"));
    EXPECT_EQ(settings::read(store, settings::AutoSaveTime), QStringLiteral("5")) << "an empty text counts as absent";
}

struct SpellingRow {
    const settings::Key &key;
    const char *value;
    bool on;
};

TEST(SettingsTable, ReadsEachSpellingOfTrueAndFalse)
{
    const SpellingRow rows[] = {
        {settings::WordWrap, "true", true},          {settings::WordWrap, "TRUE", true},
        {settings::WordWrap, "False", false},        {settings::WordWrap, "yes", false},
        {settings::AutoSaveUse, "True", true},       {settings::AutoSaveUse, "true", false},
        {settings::DocSelBarVis, "False", false},    {settings::DocSelBarVis, "false", true},
        {settings::DocSelBarVis, "1", true},         {settings::WelcomeScreen, "false", false},
        {settings::WelcomeScreen, "False", true},    {settings::AddrBarVisible, "1", true},
        {settings::AddrBarVisible, "True", false},   {settings::ColourCodeSyntax, "0", false},
        {settings::ColourCodeSyntax, "no", true},    {settings::ColourCodeHyperlink, "1", true},
        {settings::ColourCodeHyperlink, "2", false},
    };
    for (const SpellingRow &row : rows) {
        MemorySettings store;
        settings::write(store, row.key, QString::fromLatin1(row.value));
        EXPECT_EQ(settings::isOn(store, row.key), row.on) << row.key.name << ' ' << row.value;
    }
}

TEST(SettingsTable, PreviewsByACopyIfTheWholePartIsOne)
{
    MemorySettings store;
    EXPECT_TRUE(settings::previewsByCopy(store)) << "nothing is stored";
    for (const char *value : {"1", "1.9", " 1 ", "01"}) {
        settings::write(store, settings::PagePreview, QString::fromLatin1(value));
        EXPECT_TRUE(settings::previewsByCopy(store)) << value;
    }
    for (const char *value : {"2", "0", "10", "", "true", "-1"}) {
        settings::write(store, settings::PagePreview, QString::fromLatin1(value));
        EXPECT_FALSE(settings::previewsByCopy(store)) << value;
    }
}

TEST(SettingsTable, WritesEachSpelling)
{
    MemorySettings store;
    settings::writeBoolean(store, settings::AddrBarVisible, true);
    settings::writeBoolean(store, settings::ColourCodeSyntax, false);
    settings::writeBoolean(store, settings::WordWrap, true);
    settings::writeBoolean(store, settings::StatusBarVis, false);
    EXPECT_EQ(settings::read(store, settings::AddrBarVisible), QStringLiteral("1"));
    EXPECT_EQ(settings::read(store, settings::ColourCodeSyntax), QStringLiteral("0"));
    EXPECT_EQ(settings::read(store, settings::WordWrap), QStringLiteral("True"));
    EXPECT_EQ(settings::read(store, settings::StatusBarVis), QStringLiteral("False"));
}

TEST(SettingsTable, NumberedKeysCarryTheirNumber)
{
    EXPECT_EQ(settings::nameOf(settings::RecentFile, 4), QStringLiteral("File4"));
    EXPECT_EQ(settings::nameOf(settings::AddInPath, 12), QStringLiteral("AddIn12Path"));
    EXPECT_EQ(settings::nameOf(settings::BarNewRow, 3), QStringLiteral("Bar3NewRow"));
    EXPECT_EQ(settings::nameOf(settings::WordWrap), QStringLiteral("WordWrap"));
}

TEST(SettingsTable, TheTwoValuesOfNetPathNamingAreApart)
{
    MemorySettings store;
    settings::writeBoolean(store, settings::NetPathNaming, false);
    EXPECT_TRUE(settings::isOn(store, settings::DialogNetPathNaming));
    settings::writeBoolean(store, settings::NetPathNaming, true);
    settings::writeBoolean(store, settings::DialogNetPathNaming, false);
    EXPECT_TRUE(settings::isOn(store, settings::NetPathNaming));
}
} // namespace
