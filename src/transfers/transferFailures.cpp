#include "transfers/transferFailures.h"

namespace
{
QString sentence(CURLcode code)
{
    switch (code) {
    case CURLE_UNSUPPORTED_PROTOCOL:
        return QStringLiteral("The server leads to an address of another kind, which is not gone to.");
    case CURLE_URL_MALFORMAT:
        return QStringLiteral("The address is not a valid one.");
    case CURLE_COULDNT_RESOLVE_PROXY:
        return QStringLiteral("The name of the proxy could not be found.");
    case CURLE_COULDNT_RESOLVE_HOST:
        return QStringLiteral("The name of the server could not be found.");
    case CURLE_COULDNT_CONNECT:
        return QStringLiteral("The server could not be reached.");
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return QStringLiteral("The server did not answer in time.");
    case CURLE_TOO_MANY_REDIRECTS:
        return QStringLiteral("The server leads from one address to the next without an end.");
    case CURLE_LOGIN_DENIED:
        return QStringLiteral("The server does not take this user name with this password.");
    case CURLE_REMOTE_ACCESS_DENIED:
        return QStringLiteral("The server does not permit it.");
    case CURLE_UPLOAD_FAILED:
        return QStringLiteral("The server refused the file.");
    case CURLE_REMOTE_DISK_FULL:
        return QStringLiteral("There is no room left on the server.");
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return QStringLiteral("The connection broke off before everything had arrived.");
    default:
        return {};
    }
}

/// What the library says of the trust in a server is worth telling as it stands: it names what is wrong.
bool isAboutTrust(CURLcode code)
{
    return code == CURLE_PEER_FAILED_VERIFICATION || code == CURLE_SSL_CONNECT_ERROR ||
           code == CURLE_SSL_CACERT_BADFILE || code == CURLE_SSL_ISSUER_ERROR || code == CURLE_USE_SSL_FAILED;
}
} // namespace

QString transferFailure(CURLcode code, const QString &detail)
{
    if (isAboutTrust(code))
        return QStringLiteral("The server could not prove what it is: %1.").arg(detail);
    QString known = sentence(code);
    if (!known.isEmpty())
        return known;
    return detail.isEmpty() ? QString::fromUtf8(curl_easy_strerror(code)) + u'.' : detail + u'.';
}
