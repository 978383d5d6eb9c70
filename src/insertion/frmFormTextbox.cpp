#include "insertion/frmFormTextbox.h"

#include "insertion/attributeText.h"
#include "insertion/inputElement.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QLineEdit>

namespace
{
constexpr int LongestNumber = 5;
constexpr int LargestNumber = 99999;
} // namespace

QString textboxMarkup(const TextboxFields &fields)
{
    return inputElement(fields.password ? QStringLiteral("password") : QStringLiteral("text"),
                        attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
                            attributeUnlessEmpty(QStringLiteral("value"), fields.value) +
                            attributeUnlessEmpty(QStringLiteral("size"), fields.size) +
                            attributeUnlessEmpty(QStringLiteral("maxlength"), fields.maxLength));
}

frmFormTextbox::frmFormTextbox(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormTextbox"),
                              .caption = QStringLiteral("Insert Textbox"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_TextBox.htm")})
{
}

void frmFormTextbox::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtInitValue = ui::text(QStringLiteral("txtInitValue"));
    txtSize = ui::number(QStringLiteral("txtSize"), LongestNumber);
    txtMaxLen = ui::number(QStringLiteral("txtMaxLen"), LongestNumber);
    chkPasswordField = ui::check(QStringLiteral("chkPasswordField"), QStringLiteral("Create as a Password &Field"));
    const auto counted = [](const char *arrows, NumberField *field) {
        return ui::counted(field, ui::spin(QLatin1String(arrows), field, 0, LargestNumber));
    };
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Textbox Name"), txtName),
            ui::row(QStringLiteral("Textbox Initial Value"), txtInitValue),
            ui::row(QStringLiteral("Size"), counted("UpDownSize", txtSize)),
            ui::row(QStringLiteral("Maximum Size"), counted("UpDownMaxLen", txtMaxLen)),
            ui::row({}, chkPasswordField),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormTextbox::markup()
{
    return textboxMarkup({.name = txtName->text(),
                          .value = txtInitValue->text(),
                          .size = txtSize->text(),
                          .maxLength = txtMaxLen->text(),
                          .password = chkPasswordField->isChecked()});
}
