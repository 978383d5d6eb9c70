#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

/// What goes over the net, one page at a time: a download from an address, or an upload to one.
struct TransferRequest {
    enum class Kind { Download, Upload };
    /// Whom a transfer asks for a proxy: the desktop, nobody, or the text of `proxy`.
    enum class Access { Default = 0, Direct = 1, Named = 2 };

    Kind kind = Kind::Download;
    QString url;
    QString protocol = QStringLiteral("http"); ///< of an address that names none and does not look like another
    QByteArray body = {};                      ///< what is uploaded
    QString userName = {};                     ///< behind what the address says
    QString password = {};                     ///< kept as long as the transfer, and shown nowhere
    Access access = Access::Default;
    QString proxy = {}; ///< "ftp=NAME:PORT": a proxy for that protocol alone
    int port = 0;       ///< where the address names none; 0 for the protocol's own
    int patience = 0;   ///< seconds without any progress after which it fails; 0 for the usual 30
};

/// The most that a download takes, in bytes.
constexpr qint64 LargestDownload = 64 * 1024 * 1024;

/// How far a transfer has come. The numbers are those by which its stages are known.
enum class TransferState {
    ResolvingHost = 1,
    HostResolved = 2,
    Connecting = 3,
    Connected = 4,
    Requesting = 5,
    RequestSent = 6,
    ReceivingResponse = 7,
    ResponseReceived = 8,
    Disconnecting = 9,
    Disconnected = 10,
    Error = 11,
    ResponseCompleted = 12,
};

/// A server that proves itself by a key which nobody has vouched for yet.
struct UnknownHost {
    QString name;        ///< with its port where that is not the usual one
    QString fingerprint; ///< "SHA256:…", as the owner of a server tells it
    QString entry;       ///< its line in the list of known hosts
};

/// How a transfer ended. It went well if there is no failure, though the server may still have said no by its code.
struct TransferEnd {
    QString failure = {};                        ///< why it broke off, as a sentence; empty if it did not
    int ResponseCode = 0;                        ///< the server's; where it gave none, the number of the failure
    QString ResponseInfo = {};                   ///< the server's words with the code, or the failure's
    QByteArray body = {};                        ///< what came
    QString charset = {};                        ///< the encoding that the answer names; empty if it names none
    std::optional<UnknownHost> unknownHost = {}; ///< the failure is that this host is not known
};

/// Whoever is told how a transfer goes. The calls come from the event loop, never from within `start`; `finished` is
/// the last one. Any of them may destroy the transfer.
class TransferWatcher
{
public:
    TransferWatcher() = default;
    TransferWatcher(const TransferWatcher &) = delete;
    TransferWatcher &operator=(const TransferWatcher &) = delete;
    virtual ~TransferWatcher() = default;

    /// Stages are told in the order of their numbers, each once at most; `Error` or `ResponseCompleted` is the last.
    virtual void StateChanged(TransferState) {}
    /// Bytes of the page so far, and all there are; 0 where nobody knows.
    virtual void progressed(qint64 /*done*/, qint64 /*total*/) {}
    virtual void finished(const TransferEnd &end) = 0;
};

/// A transfer under way. Its end breaks it off, without another word to its watcher.
class Transfer
{
public:
    Transfer() = default;
    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;
    virtual ~Transfer() = default;
};

/// A transfer that has begun, or why it could not.
struct StartedTransfer {
    std::unique_ptr<Transfer> transfer;
    QString failure = {};
};

class InternetTransfers
{
public:
    InternetTransfers() = default;
    InternetTransfers(const InternetTransfers &) = delete;
    InternetTransfers &operator=(const InternetTransfers &) = delete;
    virtual ~InternetTransfers() = default;

    /// Whether the address can be gone to at all: this machine is in a network, or the address is this machine.
    virtual bool isConnected(const QString &address) = 0;

    /// Begins a transfer by http, https, ftp, ftps or sftp; nothing else is ever gone to, a file of this machine least
    /// of all. An upload takes the place of what is there only once it has arrived whole, where the server has the
    /// means for that. The watcher outlives the transfer.
    virtual StartedTransfer start(const TransferRequest &request, TransferWatcher &watcher) = 0;

    /// Takes a host into the list of those that are known, from now on. Else why that could not be done.
    virtual std::optional<QString> trust(const UnknownHost &host) = 0;
};
