#include "insertion/frmFormCheck.h"

#include "insertion/attributeText.h"
#include "insertion/inputElement.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QLineEdit>

QString checkMarkup(const CheckFields &fields)
{
    return inputElement(QStringLiteral("checkbox"), attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
                                                        (fields.checked ? QStringLiteral(" checked") : QString()) +
                                                        attributeUnlessEmpty(QStringLiteral("value"), fields.value));
}

frmFormCheck::frmFormCheck(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormCheck"),
                              .caption = QStringLiteral("Insert Check Box"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_Check.htm")})
{
}

void frmFormCheck::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtValue = ui::text(QStringLiteral("txtValue"));
    chkChecked = ui::check(QStringLiteral("chkChecked"), QStringLiteral("&Checked"));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Check Box Name"), txtName),
            ui::row(QStringLiteral("Check Box Value"), txtValue),
            ui::row({}, chkChecked),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormCheck::markup()
{
    return checkMarkup({.name = txtName->text(), .value = txtValue->text(), .checked = chkChecked->isChecked()});
}
