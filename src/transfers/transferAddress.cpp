#include "transfers/transferAddress.h"

#include <QStringList>

namespace
{
const QStringList Schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp"),
                          QStringLiteral("ftps"), QStringLiteral("sftp")};

QString withScheme(const QString &text, const QString &protocol)
{
    if (text.contains(QStringLiteral("://")))
        return text;
    const bool namesFtp = text.startsWith(QStringLiteral("ftp."), Qt::CaseInsensitive);
    return (namesFtp ? QStringLiteral("ftp") : protocol) + QStringLiteral("://") + text;
}

bool isKnownToLibrary(const QByteArray &scheme)
{
    for (const char *const *each = curl_version_info(CURLVERSION_NOW)->protocols; *each; ++each)
        if (scheme == *each)
            return true;
    return false;
}
} // namespace

std::optional<TransferAddress> TransferAddress::parse(const QString &text, const QString &protocol)
{
    const QString trimmed = text.trimmed();
    TransferAddress address(curl_url());
    if (trimmed.isEmpty() || !address.set(CURLUPART_URL, withScheme(trimmed, protocol)))
        return std::nullopt;
    const bool needsHost = Schemes.contains(address.scheme());
    return needsHost && address.host().isEmpty() ? std::nullopt : std::optional(std::move(address));
}

QString TransferAddress::part(CURLUPart which) const
{
    char *text = nullptr;
    const unsigned int flags = which == CURLUPART_USER || which == CURLUPART_PASSWORD ? CURLU_URLDECODE : 0;
    if (curl_url_get(m_handle.get(), which, &text, flags) != CURLUE_OK)
        return {};
    QString result = QString::fromUtf8(text);
    curl_free(text);
    return result;
}

bool TransferAddress::set(CURLUPart which, const QString &text)
{
    const unsigned int flags =
        which == CURLUPART_URL ? CURLU_NON_SUPPORT_SCHEME | CURLU_ALLOW_SPACE | CURLU_URLENCODE : 0;
    return curl_url_set(m_handle.get(), which, text.toUtf8().constData(), flags) == CURLUE_OK;
}

QString TransferAddress::hostWithPort() const
{
    const QString port = part(CURLUPART_PORT);
    QString name = host();
    if (name.startsWith(u'[')) // an address of IPv6 has its brackets already
        name = name.sliced(1).chopped(1);
    return port.isEmpty() || port == u"22" ? name : QStringLiteral("[%1]:%2").arg(name, port);
}

bool TransferAddress::isSupported() const
{
    return Schemes.contains(scheme()) && isKnownToLibrary(scheme().toLatin1());
}

void TransferAddress::setPort(int port)
{
    set(CURLUPART_PORT, QString::number(port));
}

QString TransferAddress::folder() const
{
    const QString path = part(CURLUPART_PATH);
    return path.first(path.lastIndexOf(u'/') + 1);
}

QString TransferAddress::name() const
{
    const QString path = part(CURLUPART_PATH);
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QString TransferAddress::besides(const QString &encodedName) const
{
    const QString port = hasPort() ? u':' + part(CURLUPART_PORT) : QString();
    return scheme() + QStringLiteral("://") + host() + port + folder() + encodedName;
}

void TransferAddress::setName(const QString &encodedName)
{
    set(CURLUPART_PATH, folder() + encodedName);
}
