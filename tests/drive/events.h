#pragma once

#include <functional>

namespace drive
{
/// Runs an act inside an event of its own, as everything that a user causes runs. What it deletes "later" is gone once
/// it has returned and the events behind it are dealt with, and no sooner: a modal form shown by the handler of a
/// button does not take the button away under its handler.
void insideEvent(const std::function<void()> &act);

/// Deals with events until there are none left.
void settle();
} // namespace drive
