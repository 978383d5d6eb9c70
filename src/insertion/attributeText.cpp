#include "insertion/attributeText.h"

QString attributeText(const QString &name, const QString &value)
{
    return u' ' + name + QStringLiteral("=\"") + value + u'"';
}

QString attributeUnlessEmpty(const QString &name, const QString &value)
{
    return value.isEmpty() ? QString() : attributeText(name, value);
}
