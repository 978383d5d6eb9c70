#include "common/addressText.h"

QString encodedAddress(const QString &path)
{
    QString address;
    for (const QChar c : path) {
        const bool encoded = c <= u' ' || c == u'\x7f' || QStringView(u"%#?\"'<>`\\^{}|").contains(c);
        address += encoded
                       ? QStringLiteral("%%1").arg(static_cast<uint>(c.unicode()), 2, 16, QLatin1Char('0')).toUpper()
                       : QString(c);
    }
    return address;
}
