#include "common/colourText.h"

#include <algorithm>

namespace
{
bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}
} // namespace

QString colourText(ColourValue colour)
{
    const auto pair = [](int part) { return QStringLiteral("%1").arg(part, 2, 16, QLatin1Char('0')); };
    return u'#' + (pair(redOf(colour)) + pair(greenOf(colour)) + pair(blueOf(colour))).toUpper();
}

std::optional<ColourValue> colourFromText(const QString &text)
{
    if (text.size() != 7 || text[0] != u'#' || !std::all_of(text.begin() + 1, text.end(), isHexDigit))
        return {};
    const auto part = [&text](int at) { return text.mid(at, 2).toInt(nullptr, 16); };
    return colourOf(part(1), part(3), part(5));
}
