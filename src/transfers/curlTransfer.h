#pragma once

#include "services/transferEngine.h"
#include "transfers/transferAddress.h"
#include "transfers/uploadSteps.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

class CurlMulti;

/// One transfer of a page. An upload may take several turns of the library: by a temporary name, straight where that is
/// refused, and one to clear up.
class CurlTransfer final : public QObject, public Transfer
{
    Q_OBJECT
public:
    CurlTransfer(CurlMulti &multi, const TransferRequest &request, TransferAddress address,
                 const TransferGround &ground, TransferWatcher &watcher);
    ~CurlTransfer() override;

private:
    // Turns.
    void begin();
    void beginUpload(UploadWay way, bool retry);
    void beginUploadToWeb();
    void beginPut(const QString &name, const std::function<void(CURLcode)> &over);
    void beginMove();
    void beginRemoval(const std::function<void()> &then);
    void beginCleanup(CURLcode failure);
    void setUp();
    void setBody();
    void addHeaders(const QList<QByteArray> &lines);
    bool isRefused() const;
    QString temporaryName() const;
    void setCommands(const UploadCommands &commands);
    void setCredentials();
    void setProxy();
    void setTrust();
    void setCallbacks();
    bool goesByProxy() const;
    void run(const std::function<void(CURLcode)> &over);
    void release();

    // Ends.
    void downloadOver(CURLcode code);
    void uploadOver(CURLcode code);
    void temporaryUploadOver(CURLcode code);
    void temporaryPutOver(CURLcode code);
    void completeResponse(CURLcode code);
    QString reasonOf(CURLcode code) const;
    void succeed();
    void fail(CURLcode code);
    void tellFailure();
    void tellEnd();
    void checkPatience();
    void advance(TransferState state);
    void tellProgress(qint64 done, qint64 total);
    void noteActivity() { m_sinceActivity.restart(); }

    // What the library calls.
    static int resolving(void *, void *, void *self);
    static curl_socket_t opening(void *self, curlsocktype purpose, curl_sockaddr *address);
    static int requesting(void *self, char *, char *, int, int);
    static std::size_t headerCame(char *line, std::size_t size, std::size_t count, void *self);
    static std::size_t bodyCame(char *bytes, std::size_t size, std::size_t count, void *self);
    static std::size_t bodyWanted(char *bytes, std::size_t size, std::size_t count, void *self);
    static int bodySought(void *self, curl_off_t offset, int origin);
    static int progress(void *self, curl_off_t downTotal, curl_off_t downNow, curl_off_t upTotal, curl_off_t upNow);
    static int hostKey(CURL *, const curl_khkey *known, const curl_khkey *found, curl_khmatch match, void *self);

    bool mayResolve() const;
    void takeHeader(const QByteArray &line);
    void noteUnknownHost(const curl_khkey &found);

    CurlMulti &m_multi;
    TransferRequest m_request;
    TransferAddress m_address;
    TransferGround m_ground;
    TransferWatcher &m_watcher;

    CURL *m_easy = nullptr;
    QList<curl_slist *> m_lists;
    char m_detail[CURL_ERROR_SIZE] = {};
    std::function<void(CURLcode)> m_over; ///< what follows on the turn that runs
    QTimer m_patienceTimer;
    QElapsedTimer m_sinceActivity;
    QElapsedTimer m_sinceProgress;
    qint64 m_moved = 0;
    qint64 m_sent = 0; ///< of the upload's body
    TransferState m_state = TransferState(0);
    QString m_target; ///< an upload's name, in codes
    UploadNames m_names;
    TransferEnd m_end;
    bool m_asksWay = false; ///< it asks a web server what it allows, and the page is still to be sent
    QByteArray m_allowed;   ///< the methods that a web server allows
    bool m_tooLarge = false;
    bool m_keyChanged = false;
};
