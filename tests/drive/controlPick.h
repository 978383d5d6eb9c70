#pragma once

#include "controlAdapter.h"

class NodeTree;
class QCalendarWidget;
class QWidget;

namespace drive
{
/// Whether the tree has a node, by the texts on its way or by "#" and its number.
bool hasNode(const NodeTree &tree, const QString &path);
/// Picks a row of a usable control, looked for by its text first where `textFirst` says so.
ActionResult pickRow(QWidget &control, const QString &row, std::optional<bool> selected, bool textFirst);
/// Turns a usable calendar to the month of the date (2026-04-05) and clicks the day.
ActionResult pickDate(QCalendarWidget &calendar, const QString &date);
} // namespace drive
