#pragma once

#include "forms/form.h"
#include "widgets/controls.h"

class QLabel;

/// The palette of the 216 safe colours, and the way to the wider choice. It leaves the colour's text in the program's
/// ColourCode, which is empty if it goes without one.
class frmColourSelSafe final : public Form
{
    Q_OBJECT
public:
    explicit frmColourSelSafe(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void cmdOther_Click();

    ColourPalette *picColourSel = nullptr;
};
