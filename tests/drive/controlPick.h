#pragma once

#include "controlAdapter.h"

class QCalendarWidget;
class QWidget;

namespace drive
{
/// Picks a row of a usable control, looked for by its text first where `textFirst` says so.
ActionResult pickRow(QWidget &control, const QString &row, std::optional<bool> selected, bool textFirst);
/// Turns a usable calendar to the month of the date (2026-04-05) and clicks the day.
ActionResult pickDate(QCalendarWidget &calendar, const QString &date);
} // namespace drive
