#include "insertion/sizeAttribute.h"

#include "insertion/attributeText.h"

QString sizeAttribute(const QString &name, const QString &size, bool inPercent)
{
    return size.isEmpty() ? QString() : attributeText(name, inPercent && !size.endsWith(u'%') ? size + u'%' : size);
}
