#pragma once

#include "common/habits.h"

/// What the rules that show in several ways mean at the places that go by them: each of the ways has its name here, and
/// is asked for in two files at most, as a rule itself is.

// Files and pictures.

/// Whether the open dialog and the command line take more files than one, and the latter lines in them.
constexpr bool takesSeveralFiles(const Habits &habits)
{
    return habits.HabitDialogs;
}

/// Whether all kinds of pictures that browsers show are offered, or those that always were.
constexpr bool knowsEveryPicture(const Habits &habits)
{
    return habits.HabitDialogs;
}

/// Whether a field stays as it is when the dialog behind its "Browse..." is left.
constexpr bool leavingKeepsField(const Habits &habits)
{
    return habits.HabitDialogs;
}

/// Whether an image has to have its file named.
constexpr bool imagesNeedSource(const Habits &habits)
{
    return habits.HabitDialogs || habits.HabitMarkup;
}

// Markup.

/// Whether markup is written as today's HTML wants it.
constexpr bool writesTodaysMarkup(const Habits &habits)
{
    return habits.HabitMarkup;
}

/// Whether the dialogs that change a tag read it as today's HTML does, and begin anew each time.
constexpr bool dialogsBeginAnew(const Habits &habits)
{
    return habits.HabitMarkup;
}

/// Whether the fields of an image hold its alternative text, and each size with its own unit.
constexpr bool imageFieldsAreComplete(const Habits &habits)
{
    return habits.HabitMarkup;
}

/// Whether the quotation mark behind the start of a video is closed.
constexpr bool closesVideoStart(const Habits &habits)
{
    return habits.HabitMarkup;
}

// Scripts and tabs.

/// Whether scripts and styles are coloured as what they are, and character references, too.
constexpr bool coloursScripts(const Habits &habits)
{
    return habits.HabitScripts;
}

/// Whether a tab stays where it is when its page is saved under another name.
constexpr bool tabsKeepTheirPlace(const Habits &habits)
{
    return habits.HabitScripts;
}
