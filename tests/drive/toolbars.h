#pragma once

#include <QList>
#include <QString>
#include <optional>

class QAction;
class QObject;
class QToolBar;

namespace drive
{
class Stage;
struct Target;

/// A toolbar's button by its 0-based number, key or text: its action. Nothing if there is none.
QAction *findToolButton(const QToolBar &bar, const QString &name);
/// The key that a toolbar knows a button by.
QString keyOfToolButton(const QToolBar &bar, const QAction &button);

/// "Pressed(KEY)", "ListCount", "Key(i)" of a toolbar; nothing for another property.
std::optional<QString> toolBarProperty(const QToolBar &bar, const QString &property);

/// Presses a button of a toolbar of the main window, or of the form that `bar` names as FORM.BAR.
void pressTool(Stage &stage, const QString &bar, const QString &key);
/// Chooses an entry of the button's drop-down list.
void pressToolDrop(Stage &stage, const QString &bar, const QString &key, const QString &entry);
} // namespace drive
