#include "insertion/frmFormMenu.h"

#include "forms/formRuntime.h"
#include "insertion/attributeText.h"
#include "widgets/listView.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>

namespace
{
constexpr int LongestHeight = 4;
constexpr int LargestHeight = 9999;
const QString SelectedMark = QStringLiteral("Selected");

QString optionMarkup(const SelectOption &option)
{
    return QStringLiteral("\r\n    <option") + (option.selected ? QStringLiteral(" selected") : QString()) +
           attributeUnlessEmpty(QStringLiteral("value"), option.value) + u'>' + option.name +
           QStringLiteral("</option>");
}

ListRow rowOf(const SelectOption &option)
{
    ListRow row;
    row.text = option.name;
    row.subItems = {option.value, option.selected ? SelectedMark : QString()};
    return row;
}

SelectOption optionOf(const ListRow &row)
{
    return {.name = row.text, .value = row.subItems.value(0), .selected = row.subItems.value(1) == SelectedMark};
}
} // namespace

QString selectMarkup(const SelectFields &fields)
{
    QString text = QStringLiteral("<select");
    if (!fields.name.isEmpty())
        text += QStringLiteral(" name = \"%1\"").arg(fields.name); // the one name with blanks around its sign
    if (fields.multiple)
        text += QStringLiteral(" multiple");
    if (!fields.comboBox) // a height that is empty or nought is written, too
        text += attributeText(QStringLiteral("size"), fields.height);
    text += u'>';
    for (const SelectOption &option : fields.options)
        text += optionMarkup(option);
    return text + QStringLiteral("\r\n</select>");
}

frmFormMenu::frmFormMenu(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormMenu"),
                              .caption = QStringLiteral("Insert List Selection"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_ListSelection.htm")})
{
}

void frmFormMenu::Form_Load()
{
    setContent(ui::beside({ui::column({settingRows(), optionList().stretched()}), dialogButtons()}));
}

ui::Node frmFormMenu::settingRows()
{
    txtName = ui::text(QStringLiteral("txtName"));
    txtName->setToolTip(QStringLiteral("Menu Name"));
    txtHeight = ui::number(QStringLiteral("txtHeight"), LongestHeight);
    txtHeight->setText(SelectFields().height);
    UpDownHeight = ui::spin(QStringLiteral("UpDownHeight"), txtHeight, 1, LargestHeight);
    chkAllowMultiSel = ui::check(QStringLiteral("chkAllowMultiSel"), QStringLiteral("Multiple Selections Permitted"));
    chkComboBox =
        ui::check(QStringLiteral("chkComboBox"), QStringLiteral("Make Combo box"), [this] { chkComboBox_Click(); });
    return ui::rows({
        ui::row(QStringLiteral("Name:"), txtName),
        ui::row(QStringLiteral("Height:"), ui::counted(txtHeight, UpDownHeight)),
        ui::row({}, chkAllowMultiSel),
        ui::row({}, chkComboBox),
    });
}

ui::Node frmFormMenu::optionList()
{
    lstValues =
        ui::listView(QStringLiteral("lstValues"), {QStringLiteral("Name"), QStringLiteral("Value"), SelectedMark});
    lstValues->header()->setSectionResizeMode(QHeaderView::Stretch);
    QPushButton *cmdAddPar =
        ui::button(QStringLiteral("cmdAddPar"), QStringLiteral("Add Value"), [this] { cmdAddPar_Click(); });
    QPushButton *cmdRemPar =
        ui::button(QStringLiteral("cmdRemPar"), QStringLiteral("&Remove"), [this] { cmdRemPar_Click(); });
    cmdRemPar->setToolTip(QStringLiteral("Remove Value"));
    return ui::column({
        ui::under(QStringLiteral("O&ptions:"), lstValues).stretched(),
        ui::line({cmdAddPar, cmdRemPar, ui::space()}),
    });
}

void frmFormMenu::chkComboBox_Click()
{
    for (QWidget *control : QList<QWidget *>{txtHeight, UpDownHeight})
        control->setEnabled(!chkComboBox->isChecked());
}

void frmFormMenu::cmdAddPar_Click()
{
    const std::optional<SelectOption> option = context().forms.get<frmAddMenuItem>().askForOption();
    if (option && isLoaded())
        lstValues->addRow(rowOf(*option));
}

void frmFormMenu::cmdRemPar_Click()
{
    if (const std::optional<int> row = lstValues->selectedRow())
        lstValues->removeRow(*row);
}

SelectFields frmFormMenu::fields() const
{
    SelectFields fields{.name = txtName->text(),
                        .height = txtHeight->text(),
                        .multiple = chkAllowMultiSel->isChecked(),
                        .comboBox = chkComboBox->isChecked(),
                        .options = {}};
    for (int row = 0; row < lstValues->rowCount(); ++row)
        fields.options.append(optionOf(lstValues->rowAt(row)));
    return fields;
}

std::optional<QString> frmFormMenu::markup()
{
    return selectMarkup(fields());
}
