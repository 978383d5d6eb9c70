#pragma once

#include <QString>

class QRegularExpression;

namespace drive
{
class Stage;

/// A regular expression that is to match a whole value, breaks included in ".". The script is wrong if it is none.
QRegularExpression wholePattern(Stage &stage, const QString &text);
} // namespace drive
