#include "insertion/frmFormTextArea.h"

#include "insertion/attributeText.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace
{
constexpr int LongestNumber = 4;
}

QString textAreaMarkup(const TextAreaFields &fields)
{
    return QStringLiteral("<textarea") + attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
           attributeUnlessEmpty(QStringLiteral("rows"), fields.rows) +
           attributeUnlessEmpty(QStringLiteral("cols"), fields.columns) + u'>' + fields.value +
           QStringLiteral("</textarea>");
}

frmFormTextArea::frmFormTextArea(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormTextArea"),
                              .caption = QStringLiteral("Insert Text Area"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_TextArea.htm")})
{
}

void frmFormTextArea::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtRows = ui::number(QStringLiteral("txtRows"), LongestNumber);
    txtCols = ui::number(QStringLiteral("txtCols"), LongestNumber);
    txtInitValue = ui::textArea(QStringLiteral("txtInitValue"));
    ui::onGotFocus(txtInitValue, [this] { SelectAllText(txtInitValue); });
    setContent(ui::beside({
        ui::column({
            ui::rows({
                ui::row(QStringLiteral("Text Area Name:"), txtName),
                ui::row(QStringLiteral("Rows:"), ui::counted(txtRows)),
                ui::row(QStringLiteral("Columns:"), ui::counted(txtCols)),
            }),
            ui::under(QStringLiteral("Initial Value:"), txtInitValue).stretched(),
        }),
        dialogButtons(),
    }));
}

std::optional<QString> frmFormTextArea::markup()
{
    return textAreaMarkup({.name = txtName->text(),
                           .rows = txtRows->text(),
                           .columns = txtCols->text(),
                           .value = ui::textOf(*txtInitValue)});
}
