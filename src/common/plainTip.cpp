#include "common/plainTip.h"

QString plainTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}
