#include "document/linkTarget.h"

#include "common/html/tokenizer.h"
#include "common/paths.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>

namespace
{
bool leadsSomewhere(QStringView attribute)
{
    return attribute.compare(u"href", Qt::CaseInsensitive) == 0 || attribute.compare(u"src", Qt::CaseInsensitive) == 0;
}
} // namespace

QString linkTargetAt(QStringView text, qsizetype position)
{
    const qsizetype start = text.first(position).lastIndexOf(u'<');
    if (start < 0)
        return {};
    html::Tokenizer tokenizer(text, start);
    const html::Token &tag = tokenizer.next();
    if (tag.kind != html::TokenKind::StartTag || !tag.closed || tag.end() <= position)
        return {};
    for (const html::Attribute &each : tag.attributes) {
        const qsizetype from = each.value.start;
        if (each.valued && from <= position && position <= from + each.value.length &&
            leadsSomewhere(tokenizer.textOf(each.name)))
            return tokenizer.textOf(each.value)
                .trimmed()
                .toString()
                .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
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
