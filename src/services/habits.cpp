#include "services/habits.h"

#include "services/settings.h"

namespace
{
// A rule comes in here once it works.
constexpr HabitRule rules[] = {
    {&Habits::HabitUndo, &settings::HabitUndo, "Undo and redo go by edits"},
    {&Habits::HabitColouring, &settings::HabitColouring, "Pages of any size are coloured"},
    {&Habits::HabitFocus, &settings::HabitFocus, "Only you move the keyboard's focus"},
    {&Habits::HabitPreview, &settings::HabitPreview, "The preview finds what stands beside a page"},
    {&Habits::HabitSave, &settings::HabitSave, "A save adds nothing to the page"},
    {&Habits::HabitKeys, &settings::HabitKeys, "Enter replaces a selection, Tab indents"},
    {&Habits::HabitPaths, &settings::HabitPaths, "Paths are truly relative"},
    {&Habits::HabitMarkup, &settings::HabitMarkup, "Dialogs write today's HTML"},
    {&Habits::HabitChecker, &settings::HabitChecker, "The checker changes the word that it marks"},
    {&Habits::HabitStart, &settings::HabitStart, "One program opens what it is given"},
    {&Habits::HabitDesktop, &settings::HabitDesktop, "The desktop learns of us on request only"},
    {&Habits::HabitStructure, &settings::HabitStructure, "The structure pane is nested and tells of errors"},
    {&Habits::HabitFind, &settings::HabitFind, "Find goes round, marks all matches and counts them"},
    {&Habits::HabitAssistant, &settings::HabitAssistant, "The assistant offers what fits at the caret"},
    {&Habits::HabitNewPage, &settings::HabitNewPage, "A new page is one of today"},
    {&Habits::HabitDialogs, &settings::HabitDialogs, "Several files, every kind of picture"},
    {&Habits::HabitScripts, &settings::HabitScripts, "Scripts and styles have their own colours"},
    {&Habits::HandsClose, &settings::HandsClose, "An end tag writes itself behind its start tag"},
    {&Habits::HandsMatch, &settings::HandsMatch, "The line and the tags at the caret are shown"},
    {&Habits::HandsPair, &settings::HandsPair, "A tag's partner follows when its name is changed"},
    {&Habits::HandsComment, &settings::HandsComment, "Ctrl+/ makes comments of lines"},
    {&Habits::HandsLines, &settings::HandsLines, "Keys move, double and remove lines"},
    {&Habits::HandsAbbreviations, &settings::HandsAbbreviations, "Tab opens abbreviations into elements"},
    {&Habits::HandsPictures, &settings::HandsPictures, "A dropped or pasted picture writes its element"},
    {&Habits::HandsColours, &settings::HandsColours, "Colours in the source are shown as squares"},
    {&Habits::HandsFollow, &settings::HandsFollow, "Ctrl and a click follow href and src"},
    {&Habits::HandsPalette, &settings::HandsPalette, "Ctrl+P finds files, Ctrl+Shift+P commands"},
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
