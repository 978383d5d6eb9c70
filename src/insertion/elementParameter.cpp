#include "insertion/elementParameter.h"

#include "insertion/attributeText.h"

QString parametersMarkup(const QList<ElementParameter> &parameters, const QString &close)
{
    QString text;
    for (const ElementParameter &parameter : parameters)
        text += QStringLiteral("\r\n    <param") + attributeText(QStringLiteral("name"), parameter.name) +
                attributeText(QStringLiteral("value"), parameter.value) + u'>';
    return close.isEmpty() ? text : text + QStringLiteral("\r\n") + close;
}
