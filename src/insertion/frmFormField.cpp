#include "insertion/frmFormField.h"

#include "insertion/attributeText.h"
#include "widgets/layout.h"

#include <QComboBox>
#include <QLineEdit>

QString formMarkup(const FormFields &fields)
{
    return QStringLiteral("<form") + attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
           attributeUnlessEmpty(QStringLiteral("action"), fields.action) +
           attributeUnlessEmpty(QStringLiteral("method"), fields.method) + QStringLiteral("></form>");
}

frmFormField::frmFormField(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormField"),
                              .caption = QStringLiteral("Insert Form Field"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_Field.htm")})
{
}

void frmFormField::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtAction = ui::text(QStringLiteral("txtAction"));
    cboMethod = ui::combo(QStringLiteral("cboMethod"), {QStringLiteral("post"), QStringLiteral("get")});
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Name:"), txtName),
            ui::row(QStringLiteral("Action:"), txtAction),
            ui::row(QStringLiteral("Method:"), cboMethod),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormField::markup()
{
    return formMarkup({.name = txtName->text(), .action = txtAction->text(), .method = cboMethod->currentText()});
}
