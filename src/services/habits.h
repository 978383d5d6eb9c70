#pragma once

#include "common/habits.h"

#include <span>

class SettingsStore;
namespace settings
{
struct Key;
}

/// One rule that the user can choose: the member of `Habits`, the key that it is stored under, and what it is called.
struct HabitRule {
    bool Habits::*rule;
    const settings::Key *key;
    const char *caption; ///< without an accelerator
};

/// The rules that the program knows, in the order in which they are offered.
std::span<const HabitRule> habitRules();

/// What is stored: each rule as its key says, and where that holds nothing, as the choice of both ways says. A rule
/// that is not among habitRules() is false.
Habits readHabits(SettingsStore &store);

/// Whether today's way is chosen.
bool editsByToday(SettingsStore &store);
/// Whether one of the two ways has ever been chosen.
bool habitsAreChosen(SettingsStore &store);
void chooseHabits(SettingsStore &store, bool today);
