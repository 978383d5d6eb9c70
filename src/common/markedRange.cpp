#include "common/markedRange.h"

#include <QStringList>

QString tipOf(const QList<MarkedRange> &marks)
{
    QStringList tips;
    for (const MarkedRange &mark : marks) {
        if (!mark.tip.isEmpty() && !tips.contains(mark.tip))
            tips.append(mark.tip);
    }
    return tips.join(u'\n');
}
