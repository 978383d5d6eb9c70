#pragma once

#include "common/habits.h"

/// What the rule for files and pictures means at the places that go by it.
///
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
