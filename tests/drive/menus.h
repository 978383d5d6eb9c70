#pragma once

#include <QString>

class QMenu;

namespace drive
{
class Stage;

/// Opens the menus on the way to an entry, which runs their enabling rules, and chooses it. `name` is an entry of the
/// main window or, as FORM.NAME, of another form.
void chooseMenuEntry(Stage &stage, const QString &name);
/// Opens a menu, and those above it, and closes it again.
void openMenu(Stage &stage, const QString &name);
/// Opens a drop-down list and chooses the entry of that 0-based number, name, key or text.
void chooseFromList(Stage &stage, QMenu &menu, const QString &name);
} // namespace drive
