#include "internet/putOperation.h"

namespace
{
const QString Verb = QStringLiteral("PUT \"");
const QString BehindPath = QStringLiteral("\" ");
} // namespace

QString putOperation(const PutOperation &operation)
{
    return Verb + operation.path + BehindPath + operation.fileName;
}

std::optional<PutOperation> parsePutOperation(const QString &text)
{
    if (!text.startsWith(Verb))
        return std::nullopt;
    const qsizetype end = text.indexOf(BehindPath, Verb.size());
    if (end < 0)
        return std::nullopt;
    return PutOperation{text.sliced(Verb.size(), end - Verb.size()), text.sliced(end + BehindPath.size())};
}
