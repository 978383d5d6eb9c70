#pragma once

#include "forms/form.h"

class HabitChoice;
class NumberField;
class QCheckBox;
class QComboBox;

/// The options of the editor itself: its font, tabs, how new documents are written, the
/// theme, and the rules that the user edits by.
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
    NumberField *txtIndentWidth = nullptr;
    QCheckBox *chkIndentWithTabs = nullptr;
    HabitChoice *m_habits = nullptr; ///< lives as long as the window
    QComboBox *cboLineEnd = nullptr;
    QComboBox *cboEncoding = nullptr;
    QComboBox *cboTheme = nullptr;
};
