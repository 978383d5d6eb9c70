#include "insertion/frmFormButton.h"

#include "insertion/attributeText.h"
#include "insertion/inputElement.h"
#include "widgets/layout.h"

#include <QComboBox>
#include <QLineEdit>

namespace
{
QString typeOf(const QString &choice)
{
    if (choice == u"Submit Button")
        return QStringLiteral("submit");
    return choice == u"Reset Button" ? QStringLiteral("reset") : QStringLiteral("button");
}
} // namespace

QStringList buttonTypes()
{
    return {QStringLiteral("Submit Button"), QStringLiteral("Normal Button"), QStringLiteral("Reset Button")};
}

QString buttonMarkup(const ButtonFields &fields)
{
    return inputElement(typeOf(fields.type), attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
                                                 attributeUnlessEmpty(QStringLiteral("value"), fields.value));
}

frmFormButton::frmFormButton(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormButton"),
                              .caption = QStringLiteral("Insert Button"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_Button.htm")})
{
}

void frmFormButton::Form_Load()
{
    cboType = ui::dropList(QStringLiteral("cboType"), buttonTypes());
    txtName = ui::text(QStringLiteral("txtName"));
    txtValue = ui::text(QStringLiteral("txtValue"));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Type:"), cboType),
            ui::row(QStringLiteral("Name:"), txtName),
            ui::row(QStringLiteral("Value:"), txtValue),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormButton::markup()
{
    return buttonMarkup({.type = cboType->currentText(), .name = txtName->text(), .value = txtValue->text()});
}
