#include "insertion/tagValues.h"

QStringList tagValues(const QString &text, const QString &tagWord, const QString &attribute, int limit)
{
    const QString opening = attribute + QLatin1String("=\"");
    QStringList values;
    qsizetype behind = 0;
    while (values.size() < limit) {
        const qsizetype tag = text.indexOf(tagWord, behind);
        const qsizetype end = tag < 0 ? -1 : text.indexOf(u'>', tag);
        if (end < 0)
            break;
        const qsizetype inTag = QStringView(text).sliced(tag, end - tag).indexOf(opening);
        const qsizetype start = tag + inTag + opening.size();
        const qsizetype quote = inTag < 0 ? -1 : text.indexOf(u'"', start);
        if (quote < 0)
            break;
        values.append(text.sliced(start, quote - start));
        behind = end + 1;
    }
    return values;
}
