#pragma once

#include "forms/form.h"

/// The Welcome screen over the main window at the start of a session.
class frmWelcome final : public Form
{
    Q_OBJECT
public:
    explicit frmWelcome(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;
};
