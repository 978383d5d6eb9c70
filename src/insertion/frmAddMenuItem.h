#pragma once

#include "insertion/companionForm.h"

#include <optional>

class QCheckBox;
class QLineEdit;

/// One entry of a list selection.
struct SelectOption {
    QString name = {};
    QString value = {}; ///< what is sent if the entry is chosen; empty: its name
    bool selected = false;
};

/// Asks for an entry of a list selection.
class frmAddMenuItem final : public CompanionForm
{
    Q_OBJECT
public:
    explicit frmAddMenuItem(ProgramContext &context);

    /// Nothing if the user left the form without adding one.
    std::optional<SelectOption> askForOption();

protected:
    void Form_Load() override;
    bool accept() override;

private:
    void txtName_Change();
    void Check1_Click();

    std::optional<SelectOption> m_option;
    QLineEdit *txtName = nullptr;
    QCheckBox *Check1 = nullptr;
    QLineEdit *txtSubmitted = nullptr;
    QCheckBox *chkSelected = nullptr;
};
