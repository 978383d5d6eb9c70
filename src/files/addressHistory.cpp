#include "files/addressHistory.h"

#include "common/encodings.h"

namespace
{
const QString Break = QStringLiteral("\r\n");
}

QStringList addressesOf(const QByteArray &file)
{
    QStringList lines = decodeOwnFile(file).split(Break);
    lines.removeAll(QString());
    return lines;
}

QByteArray withAddress(const QByteArray &file, const QString &address)
{
    QString text = decodeOwnFile(file);
    if (!text.isEmpty() && !text.endsWith(Break))
        text += Break;
    return encodeOwnFile(text + address + Break);
}
