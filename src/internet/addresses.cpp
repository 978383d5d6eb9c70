#include "internet/addresses.h"

#include "common/paths.h"

#include <QRegularExpression>
#include <QUrl>

namespace
{
const QString Parting = QStringLiteral("*|*");

/// Where the host's part of an address begins and ends.
struct Authority {
    qsizetype start = 0;
    qsizetype end = 0;
};

Authority authorityOf(const QString &address)
{
    const qsizetype scheme = address.indexOf(QStringLiteral(":/"));
    // Behind the host, ":/" is an empty port, or some of the path.
    const bool hasScheme = scheme >= 0 && !address.first(scheme).contains(QRegularExpression(QStringLiteral("[/?#@]")));
    qsizetype start = hasScheme ? scheme + 1 : 0;
    while (start < address.size() && address[start] == u'/') // one or three of them are taken for two by who goes there
        ++start;
    qsizetype end = start;
    while (end < address.size() && !QStringLiteral("/?#").contains(address[end]))
        ++end;
    return {start, end};
}
} // namespace

QString originOf(const QString &address)
{
    const QString name = UrlNameOnly(address);
    return originOf(address.chopped(name.size()), name);
}

QString originOf(const QString &location, const QString &fileName)
{
    return location + Parting + fileName;
}

Origin parseOrigin(const QString &origin)
{
    const qsizetype parting = origin.indexOf(Parting);
    if (parting < 0)
        return {origin, {}};
    return {origin.first(parting), origin.sliced(parting + Parting.size())};
}

QString addressOfFile(const QString &location, const QString &fileName)
{
    if (fileName.isEmpty())
        return location;
    const QString folder = location.endsWith(u'/') ? location : location + u'/';
    return folder + QString::fromLatin1(QUrl::toPercentEncoding(fileName, "/"));
}

QString withoutPassword(const QString &address)
{
    const Authority authority = authorityOf(address);
    const QString host = address.sliced(authority.start, authority.end - authority.start);
    const qsizetype at = host.lastIndexOf(u'@');
    const qsizetype colon = host.indexOf(u':');
    if (at < 0 || colon < 0 || colon > at)
        return address;
    return address.first(authority.start + colon) + address.sliced(authority.start + at);
}

QString serverOf(const QString &address)
{
    const Authority authority = authorityOf(address.trimmed());
    const QString host = address.trimmed().sliced(authority.start, authority.end - authority.start);
    return host.sliced(host.lastIndexOf(u'@') + 1).toLower().remove(u' ');
}

bool sendsPlainPassword(const QString &address)
{
    const QString text = address.trimmed().toLower();
    const qsizetype scheme = text.indexOf(QStringLiteral("://"));
    if (scheme < 0)
        return !text.isEmpty();
    const QString name = text.first(scheme);
    return name == u"ftp" || name == u"http";
}
