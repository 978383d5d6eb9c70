#pragma once

#include <QString>

/// A `width` or `height` of so many pixels or percent; nothing at all for an empty size. One that has its sign is in
/// percent anyway.
QString sizeAttribute(const QString &name, const QString &size, bool inPercent);
