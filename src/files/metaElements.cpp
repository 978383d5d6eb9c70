#include "files/metaElements.h"

#include "common/text.h"

QString metaContent(const QString &pageText, const QString &name)
{
    const QString opening = QStringLiteral("<meta name=\"") + name + QStringLiteral("\" content=\"");
    const qsizetype found = Find(LCase(pageText), opening).value_or(0);
    if (found == 0)
        return {};
    const qsizetype start = found + opening.size();
    const qsizetype end = Find(pageText, u"\"", start).value_or(0);
    return end == 0 ? QString() : Mid(pageText, start, end - start).value_or(QString());
}
