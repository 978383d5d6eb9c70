#include "extensions/frmAddInManager.h"
#include "extensions/modAddIns.h"
#include "extensions/modWizards.h"
#include "services/settings.h"
#include "unit/support/memorySettings.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(WizardNames, EndAtTheirSemicolons)
{
    const struct {
        const char *list;
        QStringList names;
    } rows[] = {
        {"", {}},
        {"a;", {q("a")}},
        {"a;b;", {q("a"), q("b")}},
        {"a;b", {q("a")}},   // what no semicolon ends is no name
        {"a", {}},           // nor is it alone
        {";", {}},           // the position has reached the end at once
        {";;", {QString()}}, // an empty name in front of the last one
        {"a;;", {q("a")}},   // the position stands at the end before the empty one
        {"a;;b;", {q("a"), QString(), q("b")}},
        {" a b ;", {q(" a b ")}}, // blanks are the name's
    };
    for (const auto &row : rows)
        EXPECT_EQ(wizardNames(q(row.list)), row.names) << row.list;
}

TEST(AddInRows, BearTheirNumberAtTheEnd)
{
    EXPECT_EQ(addInRow(q("Tool"), 12), q("Tool (ID: 12)"));
    const auto row = parseAddInRow(q("x (ID: 5) (ID: 7)"));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->name, q("x (ID: 5)"));
    EXPECT_EQ(row->number, 7);
    for (const char *other : {"", "x", "x (ID: 5", "x (ID: )", "x (ID: y)"})
        EXPECT_FALSE(parseAddInRow(q(other))) << other;
}

TEST(AddIns, AreNamedAfterTheirFile)
{
    const struct {
        const char *path;
        const char *name;
    } rows[] = {{"/opt/tool.sh", "tool"},
                {"/usr/bin/gimp", "gimp"},
                {"/opt/a.b.sh", "a.b"},
                {"/opt/v1.2/run", "run"},
                {"/home/me/.start", ".start"}}; // without the ending, nothing would be left
    for (const auto &row : rows) {
        MemorySettings store;
        installAddIn(store, q(row.path));
        ASSERT_EQ(installedAddIns(store).size(), 1) << row.path;
        EXPECT_EQ(installedAddIns(store)[0].name, q(row.name));
        EXPECT_TRUE(installedAddIns(store)[0].shown);
    }
}

TEST(AddIns, KeepTheirNumbers)
{
    MemorySettings store;
    for (const char *path : {"/a", "/b", "/c"})
        installAddIn(store, q(path));
    removeAddIn(store, 2);
    showAddIn(store, 3, false);
    installAddIn(store, q("/d"));
    const QList<AddIn> addIns = installedAddIns(store);
    ASSERT_EQ(addIns.size(), 3);
    EXPECT_EQ(addIns[0].number, 1);
    EXPECT_EQ(addIns[1].number, 3);
    EXPECT_FALSE(addIns[1].shown);
    EXPECT_EQ(addIns[2].number, 4);
    EXPECT_EQ(settings::read(store, settings::AddInsAvailable), q("4"));
}

TEST(AddIns, SurviveANumberThatIsNone)
{
    for (const char *number : {"", "many", "-3", "99999999999"}) {
        MemorySettings store;
        settings::write(store, settings::AddInsAvailable, q(number));
        EXPECT_TRUE(installedAddIns(store).isEmpty()) << number;
        installAddIn(store, q("/a"));
        EXPECT_EQ(settings::read(store, settings::AddInsAvailable), q("1")) << number;
    }
}
} // namespace
