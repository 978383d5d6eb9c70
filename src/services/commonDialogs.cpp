#include "services/commonDialogs.h"

#include "common/dialogFilter.h"
#include "common/paths.h"

namespace
{
/// ".html" for "*.html"; nothing for a pattern that any name matches.
QString endingOf(const QString &pattern)
{
    const QString ending = pattern.startsWith(QStringLiteral("*.")) ? pattern.sliced(1) : QString();
    return ending.contains(u'*') || ending.contains(u'?') ? QString() : ending;
}
} // namespace

FileDialogResult withEnding(const FileDialogResult &chosen, const QString &filter,
                            const std::function<bool(const QString &)> &exists)
{
    const QList<DialogFilterRow> rows = parseDialogFilter(filter);
    const QString name = FileNameOnly(chosen.fileName);
    if (chosen.filterIndex < 1 || chosen.filterIndex > rows.size() || name.isEmpty() || name.contains(u'.') ||
        exists(chosen.fileName))
        return chosen;
    FileDialogResult ended = chosen;
    ended.fileName += endingOf(rows[chosen.filterIndex - 1].patterns.first());
    return ended;
}
