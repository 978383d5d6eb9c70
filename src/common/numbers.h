#pragma once

#include <QStringView>

/// The whole number that a text starts with, blanks and a sign before it allowed; 0 where it starts with none. A number
/// too large for the result is cut to the largest.
qint64 wholeNumber(QStringView text);
