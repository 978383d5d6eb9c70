#pragma once

#include "texttools/pageRules.h"

#include <QStringView>

/// Tests of single values, by the standard's own rules for each. A value is as it stands in the page, references and
/// all.
struct ValueFault {
    QString message; ///< what is wrong; empty where nothing is
    QString remedy;
    QString fix; ///< the one value that would be right; null where there is more than one
    bool hint = false;
};

/// What is wrong with the value of an attribute, whose name is given for the telling.
ValueFault faultOfValue(const AttributeRule &rule, QStringView attribute, QStringView value);

bool isInteger(QStringView value);  ///< an optional "-" and digits
bool isNatural(QStringView value);  ///< digits
bool isNumber(QStringView value);   ///< a floating-point number as the standard writes it
bool isLanguage(QStringView value); ///< well-formed as a language tag, "" included
/// A date, a time, both, a month, a week, a year or a duration.
bool isMoment(QStringView value);
/// A date, or a date and time with its zone.
bool isDay(QStringView value);
/// What is wrong with an address; empty where nothing is.
QString faultOfUrl(QStringView value);

/// The words of a value that is a list.
QList<QStringView> wordsOfValue(QStringView value);
