#include "services/settings.h"

#include "unit/support/memorySettings.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{
using settings::Spelling;

QString stored(MemorySettings &store, const settings::Key &key)
{
    return store.GetSetting(QLatin1String(key.app), QLatin1String(key.section), QLatin1String(key.name));
}

TEST(SettingsTable, HoldsEveryKeyOnceInItsSection)
{
    QSet<QString> seen;
    for (const settings::Key &key : settings::all()) {
        const QString place =
            QStringLiteral("%1/%2/%3")
                .arg(QLatin1String(key.app), QLatin1String(key.section), QLatin1String(key.name).toString().toLower());
        EXPECT_FALSE(seen.contains(place)) << qPrintable(place);
        seen.insert(place);
        EXPECT_TRUE(QLatin1String(key.app) == QLatin1String("QWRK77XE") ||
                    QLatin1String(key.app) == QLatin1String("QWRK77"))
            << key.name;
        EXPECT_NE(QLatin1String(key.section), QLatin1String()) << key.name;
    }
    EXPECT_GT(seen.size(), 60);
}

// Other versions of the program read the same store: the names in it are not ours to change by and by.
TEST(SettingsTable, NamesAKeyAsItsConstantIsCalled)
{
    const QSet<QString> others{QStringLiteral("DialogNetPathNaming"), QStringLiteral("RecentFile"),
                               QStringLiteral("RecentWelcome")};
#define KEY(constant, name, ...)                                                                                       \
    if (!others.contains(QStringLiteral(#constant))) {                                                                 \
        EXPECT_EQ(QString::fromLatin1(name).remove(u'#'), QStringLiteral(#constant));                                  \
    }
#include "services/settingsKeys.h"
    EXPECT_STREQ(settings::DialogNetPathNaming.name, "NetPathNaming");
    EXPECT_STREQ(settings::DialogNetPathNaming.app, "QWRK77");
    EXPECT_STREQ(settings::RecentFile.name, "File#");
    EXPECT_STREQ(settings::RecentWelcome.name, "Welcome#");
}

TEST(SettingsTable, GivesABooleanOnlyDefaultsThatItsSpellingKnows)
{
    const QMap<Spelling, QStringList> known{
        {Spelling::Word, {{}, QStringLiteral("true"), QStringLiteral("false")}},
        {Spelling::ExactTrue, {{}, QStringLiteral("true"), QStringLiteral("false")}},
        {Spelling::ExactFalse, {{}, QStringLiteral("true"), QStringLiteral("false")}},
        {Spelling::LowerFalse, {{}, QStringLiteral("true"), QStringLiteral("false")}},
        {Spelling::One, {{}, QStringLiteral("0"), QStringLiteral("1")}},
        {Spelling::NotZero, {{}, QStringLiteral("0"), QStringLiteral("1")}},
    };
    for (const settings::Key &key : settings::all()) {
        if (key.spelling == Spelling::Text)
            continue;
        EXPECT_TRUE(known[key.spelling].contains(QString::fromLatin1(key.fallback).toLower())) << key.name;
        EXPECT_TRUE(known[key.spelling].contains(QString::fromLatin1(key.firstRun).toLower())) << key.name;
    }
}

TEST(SettingsTable, FirstStartFillsAnEmptyStoreAndNothingElse)
{
    MemorySettings store;
    settings::writeFirstRunDefaults(store, QStringLiteral("/app"));
    qsizetype written = 0;
    for (const settings::Key &key : settings::all()) {
        const QString value =
            QString::fromLatin1(key.firstRun).replace(QStringLiteral("<AppPath>"), QStringLiteral("/app"));
        EXPECT_EQ(stored(store, key), value) << key.name;
        written += key.firstRun ? 1 : 0;
    }
    EXPECT_EQ(store.count(), written);
    EXPECT_EQ(settings::read(store, settings::Templates), QStringLiteral("/app/Template"));
    EXPECT_EQ(settings::read(store, settings::AutoSaveUse), QStringLiteral("False"));
    EXPECT_EQ(settings::read(store, settings::ColourCodeURL), QStringLiteral("16711680"));
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
