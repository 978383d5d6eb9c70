#include "insertion/inputElement.h"

#include "insertion/attributeText.h"

QString inputElement(const QString &type, const QString &attributes)
{
    return QStringLiteral("<input") + attributeText(QStringLiteral("type"), type) + attributes + u'>';
}
