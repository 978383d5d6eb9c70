// How the library is told what a turn of a transfer is to be.
#include "transfers/curlTransfer.h"

namespace
{
constexpr long MostRedirects = 10;
// At each turn the library fills its buffer up to a hundred times if the server is quick enough. What comes of that is
// to take a few milliseconds, since nothing else happens meanwhile.
constexpr long ReadBytes = 32 * 1024;
constexpr long WriteBytes = 512 * 1024;

/// A web address leads to web addresses alone, and one that is encrypted to encrypted ones.
QByteArray redirectSchemes(const QString &scheme)
{
    return scheme == u"https" ? QByteArray("https") : QByteArray("http,https");
}
} // namespace

void CurlTransfer::setUp()
{
    release();
    m_end = {};
    m_easy = curl_easy_init();
    curl_easy_setopt(m_easy, CURLOPT_CURLU, m_address.handle());
    curl_easy_setopt(m_easy, CURLOPT_PROTOCOLS_STR, "http,https,ftp,ftps,sftp");
    curl_easy_setopt(m_easy, CURLOPT_REDIR_PROTOCOLS_STR, redirectSchemes(m_address.scheme()).constData());
    curl_easy_setopt(m_easy, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(m_easy, CURLOPT_MAXREDIRS, MostRedirects);
    curl_easy_setopt(m_easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(m_easy, CURLOPT_FORBID_REUSE, 1L); // a connection knows its password
    curl_easy_setopt(m_easy, CURLOPT_BUFFERSIZE, ReadBytes);
    curl_easy_setopt(m_easy, CURLOPT_UPLOAD_BUFFERSIZE, WriteBytes);
    curl_easy_setopt(m_easy, CURLOPT_USERAGENT, "Tagwrighter");
    curl_easy_setopt(m_easy, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(m_easy, CURLOPT_ERRORBUFFER, m_detail);
    setCredentials();
    setProxy();
    setTrust();
    setCallbacks();
}

void CurlTransfer::setBody()
{
    m_sent = 0;
    curl_easy_setopt(m_easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(m_easy, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(m_request.body.size()));
    addHeaders({"Expect:"}); // a page is not worth a question first
}

void CurlTransfer::addHeaders(const QList<QByteArray> &lines)
{
    curl_slist *headers = nullptr;
    for (const QByteArray &line : lines)
        headers = curl_slist_append(headers, line.constData());
    m_lists.append(headers);
    curl_easy_setopt(m_easy, CURLOPT_HTTPHEADER, headers);
}

void CurlTransfer::setCommands(const UploadCommands &commands)
{
    const auto set = [this](CURLoption option, const QList<QByteArray> &lines) {
        curl_slist *list = nullptr;
        for (const QByteArray &line : lines)
            list = curl_slist_append(list, line.constData());
        m_lists.append(list);
        curl_easy_setopt(m_easy, option, list);
    };
    const bool sftp = m_address.scheme() == u"sftp"; // has no folder that it stands in
    set(sftp ? CURLOPT_QUOTE : CURLOPT_PREQUOTE, commands.before);
    set(CURLOPT_POSTQUOTE, commands.after);
}

void CurlTransfer::setCredentials()
{
    const QString user = m_address.user().isEmpty() ? m_request.userName : m_address.user();
    const QString password = m_address.password().isEmpty() ? m_request.password : m_address.password();
    if (user.isEmpty() && password.isEmpty())
        return;
    curl_easy_setopt(m_easy, CURLOPT_USERNAME, user.toUtf8().constData());
    curl_easy_setopt(m_easy, CURLOPT_PASSWORD, password.toUtf8().constData());
    curl_easy_setopt(m_easy, CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_ANY));
}

bool CurlTransfer::goesByProxy() const
{
    return m_request.access == TransferRequest::Access::Named && m_request.proxy.startsWith(m_address.scheme() + u'=');
}

void CurlTransfer::setProxy()
{
    if (m_request.access == TransferRequest::Access::Default)
        return;
    const QString proxy = goesByProxy() ? m_request.proxy.sliced(m_address.scheme().size() + 1) : QString();
    curl_easy_setopt(m_easy, CURLOPT_PROXY, proxy.toUtf8().constData());
}

void CurlTransfer::setTrust()
{
    curl_easy_setopt(m_easy, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(m_easy, CURLOPT_SSL_VERIFYHOST, 2L);
    if (m_address.scheme() == u"ftps")
        curl_easy_setopt(m_easy, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    // The list of trusted authorities can be another one, as for the system's own tools.
    const QByteArray authorities = qgetenv("SSL_CERT_FILE");
    if (!authorities.isEmpty())
        curl_easy_setopt(m_easy, CURLOPT_CAINFO, authorities.constData());
    curl_easy_setopt(m_easy, CURLOPT_SSH_KNOWNHOSTS, m_ground.knownHosts.toUtf8().constData());
    curl_easy_setopt(m_easy, CURLOPT_SSH_KEYFUNCTION, &CurlTransfer::hostKey);
    curl_easy_setopt(m_easy, CURLOPT_SSH_KEYDATA, this);
}

void CurlTransfer::setCallbacks()
{
    const auto set = [this](CURLoption function, auto callback, CURLoption data) {
        curl_easy_setopt(m_easy, function, callback);
        curl_easy_setopt(m_easy, data, this);
    };
    set(CURLOPT_RESOLVER_START_FUNCTION, &CurlTransfer::resolving, CURLOPT_RESOLVER_START_DATA);
    set(CURLOPT_OPENSOCKETFUNCTION, &CurlTransfer::opening, CURLOPT_OPENSOCKETDATA);
    set(CURLOPT_PREREQFUNCTION, &CurlTransfer::requesting, CURLOPT_PREREQDATA);
    set(CURLOPT_HEADERFUNCTION, &CurlTransfer::headerCame, CURLOPT_HEADERDATA);
    set(CURLOPT_WRITEFUNCTION, &CurlTransfer::bodyCame, CURLOPT_WRITEDATA);
    set(CURLOPT_READFUNCTION, &CurlTransfer::bodyWanted, CURLOPT_READDATA);
    set(CURLOPT_SEEKFUNCTION, &CurlTransfer::bodySought, CURLOPT_SEEKDATA);
    set(CURLOPT_XFERINFOFUNCTION, &CurlTransfer::progress, CURLOPT_XFERINFODATA);
    curl_easy_setopt(m_easy, CURLOPT_NOPROGRESS, 0L);
}
