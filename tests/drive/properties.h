#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class Form;

namespace drive
{
class Stage;
struct Target;

/// What a property of a target reads. The script is wrong if the target has no such property, or no such row, node or
/// tab.
QString readTarget(Stage &stage, const Target &target, const QString &property);
/// The same, but nothing for what there is not.
std::optional<QString> tryReadTarget(Stage &stage, const Target &target, const QString &property);

/// A form's controls with their values, a line each.
QStringList dumpForm(Stage &stage, Form &form);
} // namespace drive
