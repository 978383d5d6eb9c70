#pragma once

#include "services/programPart.h"
#include "services/transferEngine.h"

/// Transfers by the module that the first of them loads.
class ModuleTransfers final : public InternetTransfers
{
public:
    ModuleTransfers(const QStringList &folders, const TransferGround &ground);
    ~ModuleTransfers() override;

    bool isConnected(const QString &address) override;
    StartedTransfer start(const TransferRequest &request, TransferWatcher &watcher) override;
    std::optional<QString> trust(const UnknownHost &host) override;

private:
    ProgramPart m_part;
    TransferGround m_ground;
    TransferEngine *m_engine = nullptr;
};
