#include "drive/outside.h"

#include "browser/modulePageViews.h"

namespace drive
{
namespace
{
class ScriptedWizard final : public NewPageWizard
{
public:
    explicit ScriptedWizard(ScriptedWizards &server) : m_server(server) {}

    std::optional<QString> AvailableWizards() override { return m_server.names; }
    bool StartWizard(int index) override
    {
        m_result = m_server.start(index);
        return true;
    }
    QString WizardExportData() const override { return m_result.data; }
    bool WizardDataToNewDoc() const override { return m_result.toNewDoc; }
    void end() override {}

private:
    ScriptedWizards &m_server;
    ScriptedWizards::Result m_result;
};
} // namespace

ScriptedTransfers::ScriptedTransfers(const QString &knownHosts)
    : m_real(partFolders(), {.knownHosts = knownHosts, .loopbackOnly = true})
{
}

StartedTransfer ScriptedTransfers::start(const TransferRequest &request, TransferWatcher &watcher)
{
    if (m_failures.isEmpty())
        return m_real.start(request, watcher);
    return {nullptr, m_failures.takeFirst()};
}

ScriptedWizards::ScriptedWizards(const QString &programFolder) : m_programs({programFolder}, {}) {}

std::unique_ptr<NewPageWizard> ScriptedWizards::create()
{
    if (names)
        return std::make_unique<ScriptedWizard>(*this);
    return m_programs.create();
}

ScriptedWizards::Result ScriptedWizards::start(int index)
{
    started.add(index);
    if (m_results.empty())
        return {};
    Result result = m_results.front();
    m_results.pop_front();
    return result;
}
} // namespace drive
