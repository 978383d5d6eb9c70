#include "insertion/frmFormHidden.h"

#include "insertion/attributeText.h"
#include "insertion/inputElement.h"
#include "widgets/layout.h"

#include <QLineEdit>

QString hiddenFieldMarkup(const QString &name, const QString &value)
{
    return inputElement(QStringLiteral("hidden"), attributeUnlessEmpty(QStringLiteral("name"), name) +
                                                      attributeUnlessEmpty(QStringLiteral("value"), value));
}

frmFormHidden::frmFormHidden(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormHidden"),
                              .caption = QStringLiteral("Insert Hidden Field"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_Hidden.htm")})
{
}

void frmFormHidden::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtInitValue = ui::text(QStringLiteral("txtInitValue"));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Name:"), txtName),
            ui::row(QStringLiteral("Initial Value:"), txtInitValue),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormHidden::markup()
{
    return hiddenFieldMarkup(txtName->text(), txtInitValue->text());
}
