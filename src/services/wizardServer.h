#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

/// The component that holds the wizards, as one that runs them sees it. A wizard is the component's own affair: its
/// windows, and what it writes. Whoever made the object can let it go only once none of its members runs.
class NewPageWizard
{
public:
    NewPageWizard() = default;
    NewPageWizard(const NewPageWizard &) = delete;
    NewPageWizard &operator=(const NewPageWizard &) = delete;
    virtual ~NewPageWizard() = default;

    /// The names of the wizards, each followed by ";". Events run meanwhile, for some seconds at most. Nothing: the
    /// component failed.
    virtual std::optional<QString> AvailableWizards() = 0;
    /// Runs a wizard, counted from 1, and returns when it is over; events run meanwhile. False: the component failed.
    virtual bool StartWizard(int index) = 0;
    /// What the last wizard wrote; empty if the user left it.
    virtual QString WizardExportData() const = 0;
    /// Whether that is a whole page; otherwise it goes in at the caret.
    virtual bool WizardDataToNewDoc() const = 0;

    /// Makes what runs come to its end soon, as if the user had left the wizard.
    virtual void end() = 0;

    /// Called with what the component has to tell while it runs.
    std::function<void(const QString &)> NewPageWizard_NotifyClients;
};

class WizardServer
{
public:
    WizardServer() = default;
    WizardServer(const WizardServer &) = delete;
    WizardServer &operator=(const WizardServer &) = delete;
    virtual ~WizardServer() = default;

    /// Nothing where there is no such component.
    virtual std::unique_ptr<NewPageWizard> create() = 0;
};
