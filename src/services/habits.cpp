#include "services/habits.h"

#include "services/settings.h"

namespace
{
// A rule comes in here once it works.
constexpr HabitRule rules[] = {
    {&Habits::HabitKeys, &settings::HabitKeys, "Enter replaces a selection, Tab indents by the width"},
    {&Habits::HabitPreview, &settings::HabitPreview, "The preview shows changes beside the page's files"},
};
} // namespace

std::span<const HabitRule> habitRules()
{
    return rules;
}

Habits readHabits(SettingsStore &store)
{
    Habits habits;
    const bool today = editsByToday(store);
    for (const HabitRule &rule : rules) {
        const bool stored = !settings::readStored(store, *rule.key).isEmpty();
        habits.*rule.rule = stored ? settings::isOn(store, *rule.key) : today;
    }
    return habits;
}

bool editsByToday(SettingsStore &store)
{
    return settings::read(store, settings::EditingHabits) == u"today";
}

bool habitsAreChosen(SettingsStore &store)
{
    return !settings::readStored(store, settings::EditingHabits).isEmpty();
}

void chooseHabits(SettingsStore &store, bool today)
{
    settings::write(store, settings::EditingHabits, today ? QStringLiteral("today") : QStringLiteral("classic"));
}
