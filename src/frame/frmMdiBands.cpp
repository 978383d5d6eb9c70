#include "frame/frmMdiBands.h"

#include <cmath>

namespace bands
{
QString flagText(bool newRow)
{
    return newRow ? QStringLiteral("True") : QStringLiteral("False");
}

std::optional<bool> flagOf(const QString &text)
{
    const QString word = text.toLower();
    if (word == u"true" || word == u"false")
        return word == u"true";
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber)
        return {};
    return number != 0;
}

QString widthText(double width)
{
    return QString::number(width, 'g', 10);
}

std::optional<double> widthOf(const QString &text)
{
    constexpr double Most = 100000; // a width that no screen has was not written by us
    bool isNumber = false;
    const double width = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(width) || width <= 0 || width > Most)
        return {};
    return width;
}
} // namespace bands
