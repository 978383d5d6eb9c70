#include "services/habits.h"

#include "services/settings.h"
#include "unit/support/memorySettings.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{
TEST(Habits, AreClassicWhereNothingIsStored)
{
    MemorySettings store;
    EXPECT_EQ(readHabits(store), Habits());
    EXPECT_FALSE(habitsAreChosen(store));
    EXPECT_FALSE(editsByToday(store));
}

TEST(Habits, GoWithTheChoice)
{
    MemorySettings store;
    chooseHabits(store, true);
    EXPECT_TRUE(habitsAreChosen(store));
    const Habits today = readHabits(store);
    for (const HabitRule &rule : habitRules())
        EXPECT_TRUE(today.*rule.rule) << rule.key->name;
    chooseHabits(store, false);
    EXPECT_TRUE(habitsAreChosen(store));
    EXPECT_EQ(readHabits(store), Habits());
    EXPECT_EQ(settings::read(store, settings::EditingHabits), QStringLiteral("classic"));
}

TEST(Habits, GoByTheirOwnKeyWhereItHoldsSomething)
{
    for (const HabitRule &rule : habitRules()) {
        MemorySettings store;
        settings::writeBoolean(store, *rule.key, true);
        Habits alone;
        alone.*rule.rule = true;
        EXPECT_EQ(readHabits(store), alone) << rule.key->name;
        chooseHabits(store, true);
        settings::write(store, *rule.key, QStringLiteral("False"));
        EXPECT_FALSE(readHabits(store).*rule.rule) << rule.key->name;
    }
}

TEST(Habits, TakeAnythingButTodayForClassic)
{
    MemorySettings store;
    settings::write(store, settings::EditingHabits, QStringLiteral("tomorrow"));
    EXPECT_EQ(readHabits(store), Habits());
}

TEST(Habits, AreOfferedOnceEachAndByName)
{
    QSet<QString> names;
    for (const HabitRule &rule : habitRules()) {
        const QString name = QString::fromLatin1(rule.key->name);
        EXPECT_FALSE(names.contains(name)) << rule.key->name;
        names.insert(name);
        EXPECT_TRUE(name.startsWith(QStringLiteral("Habit")) || name.startsWith(QStringLiteral("Hands")));
        EXPECT_FALSE(QString::fromLatin1(rule.caption).isEmpty()) << rule.key->name;
        Habits alone;
        alone.*rule.rule = true;
        EXPECT_NE(alone, Habits());
    }
}
} // namespace
