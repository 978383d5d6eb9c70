#pragma once

#include <QString>

/// One `input` element: its type, then `attributes` as they stand, each with its own blank in front.
QString inputElement(const QString &type, const QString &attributes);
