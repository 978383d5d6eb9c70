#pragma once

#include "services/transferEngine.h"

#include <QObject>

class CurlMulti;

/// Transfers over libcurl. Nothing of it is set up before the first one.
class CurlEngine final : public QObject, public TransferEngine
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.tagwrighter.TransferEngine/1")
    Q_INTERFACES(TransferEngine)
public:
    CurlEngine();
    ~CurlEngine() override;

    StartedTransfer start(const TransferRequest &request, const TransferGround &ground,
                          TransferWatcher &watcher) override;
    void shutDown() override;

private:
    std::unique_ptr<CurlMulti> m_multi;
};
