#include "internet/fetch.h"

Fetch::Fetch(InternetTransfers &transfers, const QString &url)
{
    StartedTransfer started = transfers.start({.kind = TransferRequest::Kind::Download, .url = url}, *this);
    m_transfer = std::move(started.transfer);
    m_refusal = started.failure;
}

void Fetch::Cancel()
{
    m_cancelled = m_cancelled || isRunning();
    m_transfer.reset();
}

void Fetch::finished(const TransferEnd &end)
{
    m_end = end;
    m_transfer.reset();
}
