#include "insertion/addParameterForm.h"

#include "widgets/layout.h"

#include <QLineEdit>

AddParameterForm::AddParameterForm(ProgramContext &context, const QString &name, const QString &caption)
    : CompanionForm(
          context,
          {.name = name, .caption = caption, .okName = QStringLiteral("cmdOK"), .okCaption = QStringLiteral("&OK")})
{
}

std::optional<ElementParameter> AddParameterForm::askForParameter()
{
    m_parameter.reset();
    ask();
    return m_parameter;
}

void AddParameterForm::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtValue = ui::text(QStringLiteral("txtValue"));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Name:"), txtName),
            ui::row(QStringLiteral("Value:"), txtValue),
        }),
        companionButtons(),
    }));
}

bool AddParameterForm::accept()
{
    if (txtName->text().isEmpty())
        return refused(QStringLiteral("No Parameter"), QStringLiteral("You have not entered a name for the parameter."),
                       txtName);
    m_parameter = ElementParameter{.name = txtName->text(), .value = txtValue->text()};
    return true;
}
