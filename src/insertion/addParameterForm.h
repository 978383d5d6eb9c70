#pragma once

#include "insertion/companionForm.h"
#include "insertion/elementParameter.h"

#include <optional>

class QLineEdit;

/// Asks for a parameter. Its two kinds differ in name and caption alone.
class AddParameterForm : public CompanionForm
{
    Q_OBJECT
public:
    AddParameterForm(ProgramContext &context, const QString &name, const QString &caption);

    /// Nothing if the user left the form without adding one.
    std::optional<ElementParameter> askForParameter();

protected:
    void Form_Load() override;
    bool accept() override;

private:
    std::optional<ElementParameter> m_parameter;
    QLineEdit *txtName = nullptr;
    QLineEdit *txtValue = nullptr;
};
