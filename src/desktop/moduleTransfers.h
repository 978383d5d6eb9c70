#pragma once

#include "services/transferEngine.h"

#include <QStringList>

/// Transfers by the module that the first of them loads, from the first of some folders that has it. It stays loaded to
/// the end of the process.
class ModuleTransfers final : public InternetTransfers
{
public:
    ModuleTransfers(const QStringList &folders, const TransferGround &ground);
    ~ModuleTransfers() override;

    bool isConnected(const QString &address) override;
    StartedTransfer start(const TransferRequest &request, TransferWatcher &watcher) override;
    std::optional<QString> trust(const UnknownHost &host) override;

private:
    void load();

    QStringList m_folders;
    TransferGround m_ground;
    TransferEngine *m_engine = nullptr;
    QString m_reason; ///< why there is none
};
