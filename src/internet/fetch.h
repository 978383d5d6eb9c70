#pragma once

#include "services/internetTransfer.h"

#include <QObject>

/// One download, for a handler that waits for it: it goes on whatever becomes of the form that began it.
class Fetch final : public QObject, private TransferWatcher
{
    Q_OBJECT
public:
    /// Begins at once. A failure at the start is its end already.
    Fetch(InternetTransfers &transfers, const QString &url);

    bool isRunning() const { return m_transfer != nullptr; }
    bool isCancelled() const { return m_cancelled; }
    /// Why it could not even begin; empty otherwise.
    const QString &refusal() const { return m_refusal; }
    /// How it ended; only once it runs no more.
    const TransferEnd &end() const { return m_end; }

    void Cancel();
    /// Gives another reason for what has ended already.
    void failWith(const QString &reason) { m_end.failure = reason; }

Q_SIGNALS:
    void received(qint64 done, qint64 total); ///< bytes; a total of 0 is not known

private:
    void progressed(qint64 done, qint64 total) override { Q_EMIT received(done, total); }
    void finished(const TransferEnd &end) override;

    std::unique_ptr<Transfer> m_transfer;
    QString m_refusal;
    TransferEnd m_end;
    bool m_cancelled = false;
};
