#include "internet/progressText.h"

#include <QLocale>

QString progressText(qint64 done, qint64 total)
{
    constexpr qint64 LeastShown = 256 * 1024;
    if (done < LeastShown)
        return {};
    const auto kilobytes = [](qint64 bytes) { return QLocale().toString(bytes / 1024) + QStringLiteral(" KB"); };
    return total > 0 ? QStringLiteral("(%1 of %2)").arg(kilobytes(done), kilobytes(total))
                     : QStringLiteral("(%1)").arg(kilobytes(done));
}
