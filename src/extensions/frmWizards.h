#pragma once

#include "forms/dialogForm.h"

class ListView;

/// Offers the wizards of their component, to be run one at a time. Shown modally.
class frmWizards final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmWizards(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void buildControls();
    void RunSelectedWizard();

    ListView *lstAvailWizards = nullptr;
};
