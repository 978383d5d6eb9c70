#pragma once

#include <QString>

/// The name of one member of a control array: "picBullet" and 3 give "picBullet(3)". Members count from where their
/// array does, which is 0 for most.
inline QString controlName(const QString &name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}
