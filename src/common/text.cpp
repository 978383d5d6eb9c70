#include "common/text.h"

#include "common/lineBreaks.h"

#include <algorithm>

namespace
{
/// As indexOf does, which looks at each place by itself: a single character is sought many places at a time.
qsizetype indexOfTwo(QStringView text, QStringView two, qsizetype from)
{
    for (qsizetype second = text.indexOf(two[1], from + 1); second >= 0; second = text.indexOf(two[1], second + 1)) {
        if (text[second - 1] == two[0])
            return second - 1;
    }
    return -1;
}
} // namespace

std::optional<qsizetype> Find(QStringView text, QStringView what, qsizetype start)
{
    if (start < 1)
        return std::nullopt;
    if (start > text.size())
        return 0;
    return (what.size() == 2 ? indexOfTwo(text, what, start - 1) : text.indexOf(what, start - 1)) + 1;
}

std::optional<qsizetype> FindBack(QStringView text, QStringView what, std::optional<qsizetype> start)
{
    const qsizetype from = start.value_or(text.size());
    if (from < 1 && start)
        return std::nullopt;
    if (from > text.size() || text.isEmpty())
        return 0;
    if (what.isEmpty())
        return from;
    if (what.size() > from)
        return 0;
    // The start is given: without one, Qt 6.4 looks at the character behind the view when it seeks a single character.
    return text.first(from).lastIndexOf(what, from - what.size()) + 1;
}

std::optional<QString> Mid(QStringView text, qsizetype start, std::optional<qsizetype> length)
{
    if (start < 1 || (length && *length < 0))
        return std::nullopt;
    if (start > text.size())
        return QString();
    return text.mid(start - 1, length.value_or(-1)).toString();
}

QString Trim(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

QString withCrLf(const QString &text)
{
    if (lineBreaksOf(text).areAllCrLf())
        return text; // shared, not copied: the text may be a large file's
    QString result;
    result.reserve(text.size() + text.size() / 32);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            result += QLatin1String("\r\n");
        } else {
            result += c;
        }
    }
    return result;
}

QString LCase(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), [](QChar c) { return LCase(c); });
    return result;
}

QString UCase(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), [](QChar c) { return UCase(c); });
    return result;
}
