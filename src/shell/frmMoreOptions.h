#pragma once

#include "forms/form.h"

class NumberField;
class QComboBox;

/// The options of the editor itself: its font, tabs, how new documents are written, and the theme.
class frmMoreOptions final : public Form
{
    Q_OBJECT
public:
    explicit frmMoreOptions(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void buildControls();
    void showSettings();
    void cmdOK_Click();
    void applyToAll();

    QComboBox *cboEditorFont = nullptr;
    NumberField *txtEditorFontSize = nullptr;
    NumberField *txtTabWidth = nullptr;
    QComboBox *cboLineEnd = nullptr;
    QComboBox *cboEncoding = nullptr;
    QComboBox *cboTheme = nullptr;
};
