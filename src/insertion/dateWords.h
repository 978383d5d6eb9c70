#pragma once

#include <QDateTime>
#include <QLocale>
#include <QStringList>

/// A moment as the words of `format` have it; everything that is no word stands as it is.
///
/// d, dd: the day; dddd: its name in the locale's language. m, mm: the month; mmm, mmmm: its short and its full name.
/// yy, yyyy: the year. h, hh: the hour, of twelve if the format has the word AM/PM, which becomes AM or PM; else of
/// twenty-four. m, mm right behind the hour, whatever stands between: the minute. ss: the second. The doubled words
/// have two digits at least.
QString formattedDate(const QString &format, const QDateTime &moment, const QLocale &locale);

/// The formats that the date dialog offers, in the order of its list.
QStringList dateFormats();
