// A transfer's turns, from its setting up to its end.
#include "transfers/curlTransfer.h"

#include "transfers/curlMulti.h"
#include "transfers/transferFailures.h"

#include <QUrl>

namespace
{
constexpr int UsualPatience = 30;     ///< seconds
constexpr int CleanupPatience = 5;    ///< seconds
constexpr int PatienceInterval = 250; ///< milliseconds between two looks
constexpr int FirstErrorStatus = 400;
// No other way would help with these.
constexpr int WrongPassword = 401;
constexpr int NoRoomOnServer = 507;
} // namespace

CurlTransfer::CurlTransfer(CurlMulti &multi, const TransferRequest &request, TransferAddress address,
                           const TransferGround &ground, TransferWatcher &watcher)
    : m_multi(multi), m_request(request), m_address(std::move(address)), m_ground(ground), m_watcher(watcher)
{
    if (m_request.port > 0 && !m_address.hasPort())
        m_address.setPort(m_request.port);
    m_target = m_address.name();
    m_names = uploadNames(QUrl::fromPercentEncoding(m_target.toUtf8()));
    connect(&m_patienceTimer, &QTimer::timeout, this, &CurlTransfer::checkPatience);
    begin();
}

CurlTransfer::~CurlTransfer()
{
    release();
    m_request.password.fill(u'\0');
}

void CurlTransfer::begin()
{
    advance(TransferState::ResolvingHost);
    if (m_request.kind == TransferRequest::Kind::Download) {
        setUp();
        run([this](CURLcode code) { downloadOver(code); });
    } else if (mayMove(m_address.scheme()) && !goesByProxy() && !m_target.isEmpty()) {
        beginUploadToWeb();
    } else {
        const bool byName = canRename(m_address.scheme(), m_names.target) && !goesByProxy();
        beginUpload(byName ? UploadWay::ByTemporaryName : UploadWay::Straight, false);
    }
}

void CurlTransfer::beginUpload(UploadWay way, bool retry)
{
    const bool byName = way == UploadWay::ByTemporaryName;
    m_address.setName(byName ? temporaryName() : m_target);
    setUp();
    setBody();
    setCommands(uploadCommands(way, m_address.scheme(), m_address.folder(), m_names, retry));
    run([this, byName](CURLcode code) { byName ? temporaryUploadOver(code) : uploadOver(code); });
}

/// Asks a web server whether it can rename, before anything is sent: where it could not take a temporary file away
/// either, one would stay.
void CurlTransfer::beginUploadToWeb()
{
    setUp();
    curl_easy_setopt(m_easy, CURLOPT_FORBID_REUSE, 0L); // the page follows on the same connection
    curl_easy_setopt(m_easy, CURLOPT_CUSTOMREQUEST, "OPTIONS");
    m_asksWay = true;
    curl_easy_setopt(m_easy, CURLOPT_NOBODY, 1L);
    run([this](CURLcode code) {
        m_asksWay = false;
        const bool moves = code == CURLE_OK && !isRefused() && allowsMove(m_allowed);
        const bool silent = code == CURLE_GOT_NOTHING || code == CURLE_RECV_ERROR || code == CURLE_SEND_ERROR;
        if (code == CURLE_OK && m_end.ResponseCode == WrongPassword)
            uploadOver(code);
        else if (moves)
            beginPut(temporaryName(), [this](CURLcode put) { temporaryPutOver(put); });
        else if (code == CURLE_OK || silent)
            beginUpload(UploadWay::Straight, false);
        else
            fail(code);
    });
}

void CurlTransfer::beginPut(const QString &name, const std::function<void(CURLcode)> &over)
{
    m_address.setName(name);
    setUp();
    setBody();
    run(over);
}

void CurlTransfer::temporaryPutOver(CURLcode code)
{
    if (code == CURLE_OK && !isRefused())
        beginMove();
    else if (code == CURLE_OK && m_end.ResponseCode != NoRoomOnServer)
        beginUpload(UploadWay::Straight, false);
    else if (m_sent > 0)
        beginRemoval([this, code] { code == CURLE_OK ? uploadOver(code) : fail(code); });
    else
        fail(code);
}

void CurlTransfer::beginMove()
{
    const QByteArray target = m_address.besides(m_target).toUtf8();
    setUp();
    curl_easy_setopt(m_easy, CURLOPT_CUSTOMREQUEST, "MOVE");
    curl_easy_setopt(m_easy, CURLOPT_NOBODY, 1L);
    addHeaders({"Destination: " + target, "Overwrite: T"});
    run([this](CURLcode code) {
        if (code == CURLE_OK && !isRefused())
            succeed();
        else
            beginRemoval([this] { beginUpload(UploadWay::Straight, false); });
    });
}

/// Takes the temporary file of a web server away; whatever comes of that, it goes on from what was told before.
void CurlTransfer::beginRemoval(const std::function<void()> &then)
{
    const TransferEnd told = m_end;
    const int patience = std::exchange(m_request.patience, CleanupPatience);
    m_address.setName(temporaryName());
    setUp();
    curl_easy_setopt(m_easy, CURLOPT_CUSTOMREQUEST, "DELETE");
    curl_easy_setopt(m_easy, CURLOPT_NOBODY, 1L);
    run([this, told, then, patience](CURLcode) {
        m_request.patience = patience;
        m_end = told;
        then();
    });
}

/// Takes away what has come of a file that will not become whole; the failure is told thereafter.
void CurlTransfer::beginCleanup(CURLcode failure)
{
    const int response = m_end.ResponseCode;
    const QString info = m_end.ResponseInfo;
    m_address.setName(QString());
    m_request.patience = CleanupPatience;
    setUp();
    curl_easy_setopt(m_easy, CURLOPT_NOBODY, 1L);
    setCommands(cleanupCommands(m_address.scheme(), m_address.folder(), m_names));
    run([this, failure, response, info](CURLcode) {
        m_end.ResponseCode = response;
        m_end.ResponseInfo = info;
        fail(failure);
    });
}

QString CurlTransfer::temporaryName() const
{
    return QString::fromLatin1(QUrl::toPercentEncoding(m_names.temporary));
}

/// Whether the server has answered, and that with a no.
bool CurlTransfer::isRefused() const
{
    return m_end.ResponseCode >= FirstErrorStatus;
}

void CurlTransfer::run(const std::function<void(CURLcode)> &over)
{
    m_over = over;
    noteActivity();
    m_patienceTimer.start(PatienceInterval);
    m_multi.add(m_easy, this, [this](CURLcode code) {
        m_patienceTimer.stop();
        const auto current = m_over; // which may set another turn up
        current(code);
    });
}

void CurlTransfer::release()
{
    m_patienceTimer.stop();
    if (!m_easy)
        return;
    m_multi.remove(m_easy);
    curl_easy_cleanup(m_easy);
    m_easy = nullptr;
    for (curl_slist *list : m_lists)
        curl_slist_free_all(list);
    m_lists.clear();
}

void CurlTransfer::checkPatience()
{
    const int seconds = m_request.patience > 0 ? m_request.patience : UsualPatience;
    if (m_sinceActivity.elapsed() < qint64(seconds) * 1000)
        return;
    m_patienceTimer.stop();
    m_multi.remove(m_easy);
    const auto over = m_over; // which may set another turn up
    over(CURLE_OPERATION_TIMEDOUT);
}

void CurlTransfer::downloadOver(CURLcode code)
{
    completeResponse(code);
    const bool refused = code == CURLE_REMOTE_FILE_NOT_FOUND || code == CURLE_FTP_COULDNT_RETR_FILE ||
                         code == CURLE_REMOTE_ACCESS_DENIED;
    if (code == CURLE_OK || (refused && m_end.ResponseCode >= FirstErrorStatus))
        succeed();
    else
        fail(code);
}

void CurlTransfer::temporaryUploadOver(CURLcode code)
{
    completeResponse(code);
    if (code == CURLE_OK)
        succeed();
    else if (refusesTemporaryName(code, m_end.ResponseCode))
        beginUpload(UploadWay::Straight, true);
    else if (m_sent > 0)
        beginCleanup(code);
    else
        fail(code);
}

void CurlTransfer::uploadOver(CURLcode code)
{
    completeResponse(code);
    if (code != CURLE_OK) {
        fail(code);
    } else if (m_end.ResponseCode >= FirstErrorStatus) {
        m_end.failure = m_end.ResponseInfo;
        tellFailure();
    } else {
        succeed();
    }
}

void CurlTransfer::succeed()
{
    for (const TransferState state : {TransferState::ResponseReceived, TransferState::Disconnecting,
                                      TransferState::Disconnected, TransferState::ResponseCompleted})
        advance(state);
    tellEnd();
}

/// Makes up for what a server says without a number. What it says with one is kept as it comes.
void CurlTransfer::completeResponse(CURLcode code)
{
    constexpr int NoSuchFile = 550; // SFTP says it without a number; this is the one of FTP
    if (code == CURLE_REMOTE_FILE_NOT_FOUND && m_end.ResponseCode == 0)
        m_end.ResponseCode = NoSuchFile;
}

QString CurlTransfer::reasonOf(CURLcode code) const
{
    if (m_tooLarge)
        return QStringLiteral("It is larger than 64 MiB, which is more than can be opened.");
    if (m_keyChanged)
        return QStringLiteral("The server shows another key than the one that is known of it. Somebody may stand in "
                              "between; ask the owner of the server.");
    if (m_end.unknownHost)
        return QStringLiteral("The server is not known, and you do not trust it.");
    return transferFailure(code, QString::fromLocal8Bit(m_detail));
}

void CurlTransfer::fail(CURLcode code)
{
    m_end.failure = reasonOf(code);
    if (m_end.ResponseCode < FirstErrorStatus) { // the server found nothing wrong
        m_end.ResponseCode = code;
        m_end.ResponseInfo = m_end.failure;
    }
    tellFailure();
}

void CurlTransfer::tellFailure()
{
    advance(TransferState::Error);
    tellEnd();
}

void CurlTransfer::tellEnd()
{
    QMetaObject::invokeMethod(
        this, [this] { m_watcher.finished(m_end); }, Qt::QueuedConnection);
}

/// Tells a stage, and those before it that the library has passed over in silence.
void CurlTransfer::advance(TransferState state)
{
    if (state <= m_state)
        return;
    const int first = state == TransferState::Error ? int(state) : int(m_state) + 1;
    for (int each = first; each <= int(state); ++each)
        if (each != int(TransferState::Error) || state == TransferState::Error)
            QMetaObject::invokeMethod(
                this, [this, each] { m_watcher.StateChanged(TransferState(each)); }, Qt::QueuedConnection);
    m_state = state;
}
