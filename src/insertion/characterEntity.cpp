#include "insertion/characterEntity.h"

bool hasEntity(int code)
{
    return (code >= FirstEntityCode && code < 127) || (code > 160 && code <= LastEntityCode);
}

QString characterEntity(QChar character)
{
    constexpr int FirstUnclosed = 252;
    const int code = character.unicode();
    if (!hasEntity(code))
        return {};
    if (code == FirstEntityCode)
        return QStringLiteral("$#160;");
    return QStringLiteral("&#%1").arg(code) + (code < FirstUnclosed ? QStringLiteral(";") : QString());
}

QString rightCharacterEntity(QChar character)
{
    if (!hasEntity(character.unicode()))
        return {};
    if (character == u' ')
        return QStringLiteral("&nbsp;");
    return QStringLiteral("&#%1;").arg(character.unicode());
}
