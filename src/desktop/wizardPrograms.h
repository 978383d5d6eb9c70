#pragma once

#include "services/wizardServer.h"

#include <QStringList>

/// The component of the wizards as it stands on this desktop: a program named NewPageWizard. It is started without a
/// shell and with nothing to read, with `AvailableWizards` or with `StartWizard` and a number, and says on its standard
/// output what it has to say. Each line that it writes to its standard error is a notification.
class WizardPrograms final : public WizardServer
{
public:
    using WorkingFolder = std::function<QString()>;

    /// `folders`: where the program is looked for, the first one that has it; nowhere else. `workingFolder`: where it
    /// is to run, asked at each start; the user's home where that is no folder.
    WizardPrograms(const QStringList &folders, const WorkingFolder &workingFolder);

    std::unique_ptr<NewPageWizard> create() override;

private:
    QStringList m_folders;
    WorkingFolder m_workingFolder;
};
