#pragma once

#include "desktop/moduleTransfers.h"
#include "desktop/wizardPrograms.h"
#include "drive/answers.h"

#include <QList>
#include <QStringList>
#include <deque>

namespace drive
{
/// The net of the script's world: real transfers, but to this machine alone, and as the script has prepared them.
class ScriptedTransfers final : public InternetTransfers
{
public:
    explicit ScriptedTransfers(const QString &knownHosts);

    bool isConnected(const QString &) override { return connected; }
    StartedTransfer start(const TransferRequest &request, TransferWatcher &watcher) override;
    std::optional<QString> trust(const UnknownHost &host) override { return m_real.trust(host); }

    void failNext(const QString &description) { m_failures.append(description); }
    bool connected = true;

private:
    ModuleTransfers m_real;
    QStringList m_failures;
};

/// The wizards of the script's world: none, but for those that the script names and the results that it has queued. A
/// program that stands in the program's folder runs as it does for a user.
class ScriptedWizards final : public WizardServer
{
public:
    struct Result {
        QString data;
        bool toNewDoc = false;
    };

    explicit ScriptedWizards(const QString &programFolder);

    std::unique_ptr<NewPageWizard> create() override;
    Result start(int index);

    std::optional<QString> names; ///< of the server that the script has set up
    Recorded<int> started;        ///< not yet looked at
    void queue(const Result &result) { m_results.push_back(result); }

private:
    WizardPrograms m_programs;
    std::deque<Result> m_results;
};
} // namespace drive
