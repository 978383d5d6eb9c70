#pragma once

#include <QString>

/// The colours of all windows.
namespace theme
{
inline const QString Desktop = QStringLiteral("desktop"); ///< as the desktop has them
inline const QString Light = QStringLiteral("light");
inline const QString Dark = QStringLiteral("dark");

/// Gives all windows that theme's colours at once; any other name is the desktop's.
void apply(const QString &name);
} // namespace theme
