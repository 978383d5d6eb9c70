#include "codeknowledge/codeEntry.h"

#include "common/text.h"

#include <algorithm>

namespace
{
const QString Marker = QStringLiteral("[-\\description-/]");
const QString Break = QStringLiteral("\r\n");
const QString Extension = QStringLiteral(".cde");
} // namespace

CodeEntry readCodeEntry(const QString &text)
{
    const qsizetype marker = LCase(text).indexOf(Marker);
    if (marker < 0)
        return {};
    return {text.first(marker), text.mid(marker + Marker.size() + Break.size())};
}

QString codeEntryText(const QString &code, const QString &description)
{
    return code + Break + Marker + Break + description + Break;
}

bool isValidEntryTitle(const QString &title)
{
    const auto isForbidden = [](QChar c) { return c.unicode() < u' ' || QStringLiteral("\\/:*?\"<>|").contains(c); };
    return !title.isEmpty() && std::none_of(title.begin(), title.end(), isForbidden);
}

QString entryFileName(const QString &title)
{
    return title + Extension;
}

QString entryTitle(const QString &fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot < 0 ? fileName : fileName.first(dot);
}

bool isEntryFile(const QString &fileName)
{
    return fileName.endsWith(Extension, Qt::CaseInsensitive);
}
