#pragma once

#include "internet/fetch.h"

#include <QList>
#include <QPointer>
#include <memory>

struct ProgramContext;

/// The control of a form through which it moves pages over the net. It lives in the form's window; what it has begun
/// may outlive it.
class Inet final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool StillExecuting READ StillExecuting)
    Q_PROPERTY(int AccessType MEMBER AccessType)
    Q_PROPERTY(QString Proxy MEMBER Proxy)
    Q_PROPERTY(int RemotePort MEMBER RemotePort)
    Q_PROPERTY(QString URL MEMBER URL)
    Q_PROPERTY(QString UserName MEMBER UserName)
    Q_PROPERTY(int RequestTimeout MEMBER RequestTimeout)
public:
    Inet(ProgramContext &context, const QString &name, QObject *owner);

    // The password is no property that anybody could list.
    int AccessType = 0; ///< 0 the desktop's proxy, 1 none, 2 the one in `Proxy`
    QString Proxy;
    int RemotePort = 0;
    bool RemotePortCounts = true; ///< else the port is that of the address's protocol
    QString URL;
    QString UserName;
    QString Password;
    int RequestTimeout = 0; ///< seconds; 0 for the usual time

    /// Whether anything that the control has begun still runs.
    bool StillExecuting() const;

    /// Begins to download from an address. Each call has a transfer of its own.
    std::shared_ptr<Fetch> OpenURL(const QString &url);

    /// Carries out an operation, `PUT "PATH" NAME`, on the location in `URL`. Returns as soon as the transfer has
    /// begun, which the program then sees to its end. Else why it could not begin.
    std::optional<QString> Execute(const QString &operation);

    /// Breaks off the downloads that run.
    void Cancel();

private:
    TransferRequest uploadRequest(const QString &fileName) const;

    ProgramContext &m_context;
    QList<std::weak_ptr<Fetch>> m_fetches;
    QPointer<QObject> m_upload;
};
