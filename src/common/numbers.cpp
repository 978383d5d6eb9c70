#include "common/numbers.h"

#include <limits>

qint64 wholeNumber(QStringView text)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    qint64 number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            break;
        const int digit = c.unicode() - u'0';
        number = number > (largest - digit) / 10 ? largest : number * 10 + digit;
    }
    return negative ? -number : number;
}
