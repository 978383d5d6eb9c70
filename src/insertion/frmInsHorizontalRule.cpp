#include "insertion/frmInsHorizontalRule.h"

#include "insertion/attributeText.h"
#include "insertion/modColourProcesses.h"
#include "widgets/colourSelection.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace
{
constexpr int LargestSize = 99999;

QString sizeAttributes(const RuleFields &fields)
{
    if (!fields.specifySize)
        return {};
    const bool percent = fields.widthInPercent && !fields.width.isEmpty();
    return attributeUnlessEmpty(QStringLiteral("size"), fields.size) +
           attributeUnlessEmpty(QStringLiteral("width"), percent ? fields.width + u'%' : fields.width);
}
} // namespace

QString ruleMarkup(const RuleFields &fields)
{
    QString tag = QStringLiteral("<hr");
    if (fields.align != u"(none)")
        tag += attributeText(QStringLiteral("align"), fields.align.toLower());
    if (fields.noShade)
        tag += QStringLiteral(" noshade");
    return tag + sizeAttributes(fields) + attributeUnlessEmpty(QStringLiteral("color"), fields.colour) + u'>';
}

frmInsHorizontalRule::frmInsHorizontalRule(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsHorizontalRule"),
                              .caption = QStringLiteral("Insert Horizontal Rule"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_HorizontalRule.htm")})
{
}

void frmInsHorizontalRule::Form_Load()
{
    cboAlign = ui::dropList(QStringLiteral("cboAlign"), {QStringLiteral("(none)"), QStringLiteral("Left"),
                                                         QStringLiteral("Center"), QStringLiteral("Right")});
    chkNoShade = ui::check(QStringLiteral("chkNoShade"), QStringLiteral("No Line &Shading"));
    clrColourSelection =
        colourPicker(context(), QStringLiteral("clrColourSelection"), [this] { m_colourPicked = true; });
    setContent(ui::beside({
        ui::column({
            ui::rows({
                ui::row(QStringLiteral("Alignment:"), cboAlign),
                ui::row({}, chkNoShade),
                ui::row(QStringLiteral("Colour:"), clrColourSelection),
            }),
            sizeGroup(),
        }),
        dialogButtons(),
    }));
    chkSpecifySize_Click();
}

ui::Node frmInsHorizontalRule::sizeGroup()
{
    chkSpecifySize = ui::check(QStringLiteral("chkSpecifySize"), QStringLiteral("Specify &Size:"),
                               [this] { chkSpecifySize_Click(); });
    chkSpecifySize->setChecked(true);
    txtSize = ui::number(QStringLiteral("txtSize"), 10);
    txtWidth = ui::number(QStringLiteral("txtWidth"), 10);
    optSizePixels = ui::option(QStringLiteral("optSizePixels"), QStringLiteral("Set in &Pixels"));
    optSizePercent = ui::option(QStringLiteral("optSizePercent"), QStringLiteral("Set in Per&cent"));
    optSizePixels->setChecked(true);
    return ui::column({
        chkSpecifySize,
        ui::rows({
            ui::row(QStringLiteral("Size:"),
                    ui::counted(txtSize, ui::spin(QStringLiteral("UpDown2"), txtSize, 0, LargestSize)), {},
                    QStringLiteral("Label4")),
            ui::row(QStringLiteral("Width:"),
                    ui::counted(txtWidth, ui::spin(QStringLiteral("UpDown3"), txtWidth, 0, LargestSize)),
                    {ui::options({optSizePixels, optSizePercent}, Qt::Horizontal)}, QStringLiteral("Label5")),
        }),
    });
}

void frmInsHorizontalRule::chkSpecifySize_Click()
{
    for (const char *name :
         {"Label4", "Label5", "txtWidth", "txtSize", "UpDown2", "UpDown3", "optSizePixels", "optSizePercent"})
        qobject_cast<QWidget *>(control(QLatin1String(name)))->setEnabled(chkSpecifySize->isChecked());
}

RuleFields frmInsHorizontalRule::fields() const
{
    return {.align = cboAlign->currentText(),
            .noShade = chkNoShade->isChecked(),
            .specifySize = chkSpecifySize->isChecked(),
            .size = txtSize->text(),
            .width = txtWidth->text(),
            .widthInPercent = optSizePercent->isChecked(),
            .colour = m_colourPicked ? clrColourSelection->HexadecimalColour() : QString()};
}

std::optional<QString> frmInsHorizontalRule::markup()
{
    return ruleMarkup(fields());
}
