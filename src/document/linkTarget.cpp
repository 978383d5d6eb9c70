#include "document/linkTarget.h"

#include "common/paths.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>

namespace
{
/// The tag that the position lies in; empty where it lies in none.
QStringView tagAround(QStringView text, qsizetype position, qsizetype &start)
{
    start = text.first(position).lastIndexOf(u'<');
    if (start < 0)
        return {};
    const qsizetype end = text.indexOf(u'>', position);
    return end < 0 || text.mid(start, position - start).contains(u'>') ? QStringView() : text.mid(start, end - start);
}
} // namespace

QString linkTargetAt(QStringView text, qsizetype position)
{
    static const QRegularExpression attribute(
        QStringLiteral("\\s(?:href|src)\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))"),
        QRegularExpression::CaseInsensitiveOption);
    qsizetype start = 0;
    const QString tag = tagAround(text, position, start).toString();
    for (auto match = attribute.globalMatch(tag); match.hasNext();) {
        const QRegularExpressionMatch each = match.next();
        for (int group = 1; group <= 3; ++group)
            if (each.capturedStart(group) >= 0 && start + each.capturedStart(group) <= position &&
                position <= start + each.capturedEnd(group))
                return each.captured(group).trimmed().replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    }
    return {};
}

QString localTarget(const QString &address, const QString &documentPath, const QString &root)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:"));
    const QString path =
        QUrl::fromPercentEncoding(QString(address).remove(QRegularExpression(QStringLiteral("[?#].*$"))).toUtf8());
    if (path.isEmpty() || documentPath.isEmpty() || path.startsWith(QStringLiteral("//")) || path.contains(scheme))
        return {};
    if (path.startsWith(u'/'))
        return root.isEmpty() ? path : QDir::cleanPath(root + path);
    return QDir::cleanPath(FolderOfPath(documentPath) + path);
}
