#pragma once

#include <QString>

/// A name as messages show it: in double quotes.
inline QString quoted(const QString &name)
{
    return u'"' + name + u'"';
}
