// What the library calls while a transfer runs. Nothing of the program runs within these calls: it is told afterwards.
#include "services/loopback.h"
#include "transfers/answerHeader.h"
#include "transfers/curlTransfer.h"

#include <QCryptographicHash>
#include <QUrl>
#include <algorithm>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr qsizetype SmallBody = 1 << 20;     ///< bytes
constexpr qint64 ProgressMilliseconds = 100; ///< between two tellings

CurlTransfer &transferOf(void *self)
{
    return *static_cast<CurlTransfer *>(self);
}

/// The kind of a host's key, as its list names it; the key itself begins with it, behind the length.
QByteArray kindOfKey(const QByteArray &key)
{
    if (key.size() < 4)
        return {};
    const auto length = static_cast<unsigned char>(key[3]);
    return key.mid(4, length);
}
} // namespace

int CurlTransfer::resolving(void *, void *, void *self)
{
    CurlTransfer &transfer = transferOf(self);
    transfer.noteActivity();
    return transfer.mayResolve() ? 0 : 1;
}

/// Where only this machine may be gone to, no other name is even asked for.
bool CurlTransfer::mayResolve() const
{
    if (!m_ground.loopbackOnly)
        return true;
    if (goesByProxy())
        return isLoopbackName(m_request.proxy.section(u'=', 1).section(u':', 0, -2));
    const char *address = nullptr;
    curl_easy_getinfo(m_easy, CURLINFO_EFFECTIVE_URL, &address);
    const auto parsed = TransferAddress::parse(QString::fromUtf8(address), m_address.scheme());
    return parsed && isLoopbackName(parsed->host());
}

curl_socket_t CurlTransfer::opening(void *self, curlsocktype, curl_sockaddr *address)
{
    CurlTransfer &transfer = transferOf(self);
    transfer.noteActivity();
    transfer.advance(TransferState::Connecting);
    if (transfer.m_ground.loopbackOnly && !isLoopback(address->addr))
        return CURL_SOCKET_BAD;
    return socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
}

int CurlTransfer::requesting(void *self, char *, char *, int, int)
{
    CurlTransfer &transfer = transferOf(self);
    transfer.noteActivity();
    transfer.advance(TransferState::Requesting);
    if (transfer.m_request.kind == TransferRequest::Kind::Download || transfer.m_asksWay)
        transfer.advance(TransferState::RequestSent);
    return CURL_PREREQFUNC_OK;
}

std::size_t CurlTransfer::headerCame(char *line, std::size_t size, std::size_t count, void *self)
{
    CurlTransfer &transfer = transferOf(self);
    transfer.noteActivity();
    transfer.takeHeader(QByteArray(line, static_cast<qsizetype>(size) * static_cast<qsizetype>(count)).trimmed());
    return size * count;
}

void CurlTransfer::takeHeader(const QByteArray &line)
{
    if (const std::optional<AnswerStatus> status = answerStatus(line)) {
        m_end.ResponseCode = status->code;
        m_end.ResponseInfo = status->words;
    }
    const bool upload = m_request.kind == TransferRequest::Kind::Upload;
    const bool answers = upload ? m_state >= TransferState::RequestSent && !m_asksWay : startsWebAnswer(line);
    if (answers)
        advance(TransferState::ReceivingResponse);
    if (line.first(qMin(line.size(), qsizetype(6))).toLower() == "allow:")
        m_allowed = line.mid(6);
    if (const std::optional<QString> charset = charsetOfHeader(line))
        m_end.charset = *charset;
}

std::size_t CurlTransfer::bodyCame(char *bytes, std::size_t size, std::size_t count, void *self)
{
    CurlTransfer &transfer = transferOf(self);
    const auto length = static_cast<qsizetype>(size) * static_cast<qsizetype>(count);
    transfer.noteActivity();
    transfer.advance(TransferState::ReceivingResponse);
    if (transfer.m_end.body.size() + length > LargestDownload) {
        transfer.m_tooLarge = true;
        return 0;
    }
    // Growing by and by, a large body would be copied several times over, during which nothing else happens. Room that
    // is never written to takes no memory.
    QByteArray &body = transfer.m_end.body;
    if (body.size() + length > SmallBody && body.capacity() < LargestDownload)
        body.reserve(LargestDownload);
    body.append(bytes, length);
    return size * count;
}

std::size_t CurlTransfer::bodyWanted(char *bytes, std::size_t size, std::size_t count, void *self)
{
    CurlTransfer &transfer = transferOf(self);
    const QByteArray &body = transfer.m_request.body;
    const qint64 length = std::min<qint64>(static_cast<qint64>(size * count), body.size() - transfer.m_sent);
    transfer.noteActivity();
    std::memcpy(bytes, body.constData() + transfer.m_sent, static_cast<std::size_t>(length));
    transfer.m_sent += length;
    if (transfer.m_sent == body.size())
        transfer.advance(TransferState::RequestSent);
    return static_cast<std::size_t>(length);
}

int CurlTransfer::bodySought(void *self, curl_off_t offset, int origin)
{
    CurlTransfer &transfer = transferOf(self);
    if (origin != SEEK_SET || offset < 0 || offset > transfer.m_request.body.size())
        return CURL_SEEKFUNC_FAIL;
    transfer.m_sent = offset;
    return CURL_SEEKFUNC_OK;
}

int CurlTransfer::progress(void *self, curl_off_t downTotal, curl_off_t downNow, curl_off_t upTotal, curl_off_t upNow)
{
    CurlTransfer &transfer = transferOf(self);
    const bool upload = transfer.m_request.kind == TransferRequest::Kind::Upload;
    if (downNow + upNow != transfer.m_moved) {
        transfer.m_moved = downNow + upNow;
        transfer.noteActivity();
        transfer.tellProgress(upload ? upNow : downNow, upload ? upTotal : downTotal);
    }
    return 0;
}

void CurlTransfer::tellProgress(qint64 done, qint64 total)
{
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < ProgressMilliseconds)
        return;
    m_sinceProgress.start();
    QMetaObject::invokeMethod(
        this, [this, done, total] { m_watcher.progressed(done, total); }, Qt::QueuedConnection);
}

int CurlTransfer::hostKey(CURL *, const curl_khkey *, const curl_khkey *found, curl_khmatch match, void *self)
{
    CurlTransfer &transfer = transferOf(self);
    transfer.noteActivity();
    if (match == CURLKHMATCH_OK)
        return CURLKHSTAT_FINE;
    transfer.m_keyChanged = match == CURLKHMATCH_MISMATCH;
    if (match == CURLKHMATCH_MISSING && found)
        transfer.noteUnknownHost(*found);
    return CURLKHSTAT_REJECT;
}

void CurlTransfer::noteUnknownHost(const curl_khkey &found)
{
    const QByteArray key = found.len > 0 ? QByteArray(found.key, static_cast<qsizetype>(found.len))
                                         : QByteArray::fromBase64(QByteArray(found.key));
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256);
    const QString name = m_address.hostWithPort();
    m_end.unknownHost = UnknownHost{
        .name = name,
        .fingerprint = QStringLiteral("SHA256:") + QString::fromLatin1(hash.toBase64(QByteArray::OmitTrailingEquals)),
        .entry = name + u' ' + QString::fromLatin1(kindOfKey(key)) + u' ' + QString::fromLatin1(key.toBase64())};
}
