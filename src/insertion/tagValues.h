#pragma once

#include <QString>
#include <QStringList>

/// The values that a page's tags give to one attribute, in the page's order; at most `limit` of them.
///
/// `tagWord` is the start of the tags with the blank behind it ("<map "), compared by letter case as it stands. Of each
/// tag, up to the next ">", the value in double quotes is taken. The list ends at the first tag without such an
/// attribute.
QStringList tagValues(const QString &text, const QString &tagWord, const QString &attribute, int limit);
