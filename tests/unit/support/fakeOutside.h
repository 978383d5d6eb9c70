#pragma once

#include "services/internetTransfer.h"
#include "services/wizardServer.h"

#include <QList>
#include <QStringList>

/// A net in which nothing moves but what the test moves: it holds the requests and lets the test play the server.
class FakeTransfers final : public InternetTransfers
{
public:
    bool isConnected(const QString &) override { return connected; }
    StartedTransfer start(const TransferRequest &request, TransferWatcher &watcher) override
    {
        requests.append(request);
        if (!failure.isEmpty())
            return {nullptr, failure};
        current = &watcher;
        return {std::make_unique<Running>(*this), {}};
    }
    std::optional<QString> trust(const UnknownHost &host) override
    {
        trusted.append(host.entry);
        return trustFailure;
    }

    bool connected = true;
    QString failure; ///< of the next start
    std::optional<QString> trustFailure;
    QList<TransferRequest> requests;
    QStringList trusted;
    TransferWatcher *current = nullptr; ///< of the transfer that runs
    int ended = 0;

private:
    class Running final : public Transfer
    {
    public:
        explicit Running(FakeTransfers &owner) : m_owner(owner) {}
        ~Running() override { ++m_owner.ended; }

    private:
        FakeTransfers &m_owner;
    };
};

class NoWizards final : public WizardServer
{
public:
    std::unique_ptr<NewPageWizard> create() override { return nullptr; }
};
