#include "transfers/curlEngine.h"

#include "transfers/curlMulti.h"
#include "transfers/curlTransfer.h"
#include "transfers/transferAddress.h"

CurlEngine::CurlEngine() = default;

CurlEngine::~CurlEngine() = default;

StartedTransfer CurlEngine::start(const TransferRequest &request, const TransferGround &ground,
                                  TransferWatcher &watcher)
{
    auto address = TransferAddress::parse(request.url, request.protocol);
    if (!address)
        return {nullptr, QStringLiteral("The address is not a valid one.")};
    if (!address->isSupported())
        return {nullptr,
                QStringLiteral("Addresses that begin with \"%1:\" cannot be used here.").arg(address->scheme())};
    if (!m_multi)
        m_multi = std::make_unique<CurlMulti>();
    return {std::make_unique<CurlTransfer>(*m_multi, request, std::move(*address), ground, watcher)};
}

void CurlEngine::shutDown()
{
    m_multi.reset();
}
