#include "insertion/modFonts.h"

#include <QFontDatabase>

QStringList systemFonts()
{
    return fontNames(QFontDatabase::families());
}

QStringList fontNames(const QStringList &families)
{
    QStringList names;
    for (const QString &family : families) {
        const qsizetype maker = family.endsWith(u']') ? family.lastIndexOf(QLatin1String(" [")) : -1;
        const QString name = maker < 0 ? family : family.first(maker);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}
