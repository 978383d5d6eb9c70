#include "files/textWithoutTags.h"

QString withoutTags(const QString &text)
{
    QString rest;
    rest.reserve(text.size());
    qsizetype copied = 0;
    while (true) {
        const qsizetype open = text.indexOf(u'<', copied);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u'>', open);
        if (close < 0)
            return rest += QStringView(text).sliced(copied);
        rest += QStringView(text).sliced(copied, open - copied);
        copied = close + 1;
    }
}
