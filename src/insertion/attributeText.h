#pragma once

#include <QString>

/// One attribute as tags hold it: a blank, the name, and the value in double quotes, just as the user entered it.
QString attributeText(const QString &name, const QString &value);
/// The same; nothing at all for an empty value.
QString attributeUnlessEmpty(const QString &name, const QString &value);
