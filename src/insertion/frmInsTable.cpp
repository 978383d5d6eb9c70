#include "insertion/frmInsTable.h"

#include "common/mainWindow.h"
#include "forms/formRuntime.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

namespace
{
constexpr int LargestWidth = 99999;

NumberField *numberWith(const QString &name, int maxLength, const QString &text)
{
    NumberField *field = ui::number(name, maxLength);
    field->setText(text);
    return field;
}

QComboBox *comboWith(const QString &name, const QStringList &rows, const QString &text)
{
    QComboBox *combo = ui::combo(name, rows);
    combo->setCurrentIndex(combo->findText(text));
    return combo;
}
} // namespace

frmInsTable::frmInsTable(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsTable"),
                              .caption = QStringLiteral("Insert Table"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Table.htm")})
{
}

void frmInsTable::Form_Load()
{
    txtSummary = ui::text(QStringLiteral("txtSummary"));
    setContent(ui::beside({
        ui::column({
            sizeGroup(),
            ui::line({layoutGroup(), lineGroup()}),
            ui::rows({ui::row(QStringLiteral("Table Summary:"), txtSummary)}),
        }),
        dialogButtons(),
    }));
}

ui::Node frmInsTable::sizeGroup()
{
    const TableFields design;
    txtRows = numberWith(QStringLiteral("txtRows"), 3, design.rows);
    txtCols = numberWith(QStringLiteral("txtCols"), 3, design.columns);
    return ui::group(QStringLiteral("Size"),
                     ui::column({
                         ui::rows({
                             ui::row(QStringLiteral("Rows:"),
                                     ui::counted(txtRows, ui::spin(QStringLiteral("UpDown1"), txtRows, 1, 999))),
                             ui::row(QStringLiteral("Columns:"),
                                     ui::counted(txtCols, ui::spin(QStringLiteral("UpDown2"), txtCols, 1, 999))),
                         }),
                         widthLine(),
                     }));
}

ui::Node frmInsTable::widthLine()
{
    chkSpecifyWidth = ui::check(QStringLiteral("chkSpecifyWidth"), QStringLiteral("&Specify Width:"),
                                [this] { chkSpecifyWidth_Click(); });
    txtWidth = numberWith(QStringLiteral("txtWidth"), 10, TableFields().width);
    txtWidth->setAccessibleName(QStringLiteral("Width"));
    UpDown3 = ui::spin(QStringLiteral("UpDown3"), txtWidth, 0, LargestWidth);
    optPercent = ui::option(QStringLiteral("optPercent"), QStringLiteral("Percent"));
    optPixels = ui::option(QStringLiteral("optPixels"), QStringLiteral("Pixels"));
    optPercent->setChecked(true);
    chkSpecifyWidth_Click();
    return ui::line(
        {chkSpecifyWidth, ui::counted(txtWidth, UpDown3), ui::options({optPercent, optPixels}, Qt::Horizontal)});
}

ui::Node frmInsTable::layoutGroup()
{
    const TableFields design;
    cboAlign = comboWith(QStringLiteral("cboAlign"),
                         {QStringLiteral("left"), QStringLiteral("center"), QStringLiteral("right")}, design.align);
    txtBorder = numberWith(QStringLiteral("txtBorder"), 2, design.border);
    txtCellPadding = numberWith(QStringLiteral("txtCellPadding"), 4, design.cellPadding);
    txtCellSpacing = numberWith(QStringLiteral("txtCellSpacing"), 4, design.cellSpacing);
    return ui::group(
        QStringLiteral("Layout"),
        ui::rows({
            ui::row(QStringLiteral("Alignment:"), cboAlign),
            ui::row(QStringLiteral("Border Size:"),
                    ui::counted(txtBorder, ui::spin(QStringLiteral("UpDown4"), txtBorder, 0, 99))),
            ui::row(QStringLiteral("Cell Padding:"),
                    ui::counted(txtCellPadding, ui::spin(QStringLiteral("UpDown5"), txtCellPadding, 0, 9999))),
            ui::row(QStringLiteral("Cell Spacing:"),
                    ui::counted(txtCellSpacing, ui::spin(QStringLiteral("UpDown6"), txtCellSpacing, 0, 9999))),
        }));
}

ui::Node frmInsTable::lineGroup()
{
    const TableFields design;
    cboFrame = comboWith(QStringLiteral("cboFrame"), tableFrameNames(), design.frame);
    cboRules = comboWith(QStringLiteral("cboRules"),
                         {QStringLiteral("(none)"), QStringLiteral("groups"), QStringLiteral("rows"),
                          QStringLiteral("cols"), QStringLiteral("all")},
                         design.rules);
    return ui::group(QStringLiteral("Lines"), ui::rows({
                                                  ui::row(QStringLiteral("Sides Visible:"), cboFrame),
                                                  ui::row(QStringLiteral("Rules:"), cboRules),
                                              }));
}

void frmInsTable::chkSpecifyWidth_Click()
{
    for (QWidget *control : QList<QWidget *>{txtWidth, optPercent, optPixels, UpDown3})
        control->setEnabled(chkSpecifyWidth->isChecked());
}

TableFields frmInsTable::fields() const
{
    return {.rows = txtRows->text(),
            .columns = txtCols->text(),
            .specifyWidth = chkSpecifyWidth->isChecked(),
            .width = txtWidth->text(),
            .widthInPercent = optPercent->isChecked(),
            .align = cboAlign->currentText(),
            .border = txtBorder->text(),
            .cellPadding = txtCellPadding->text(),
            .cellSpacing = txtCellSpacing->text(),
            .frame = cboFrame->currentText(),
            .rules = cboRules->currentText(),
            .summary = txtSummary->text()};
}

/// The largest tables take their time: dialog and status bar say so before it begins.
std::optional<QString> frmInsTable::markup()
{
    window()->setEnabled(false);
    frmMdi().SetStatusText(QStringLiteral("Creating Table..."));
    window()->repaint();
    if (auto *statusBar = qobject_cast<QWidget *>(context().forms.mainForm()->control(QStringLiteral("StatusBar1"))))
        statusBar->repaint();
    return tableMarkup(fields());
}

void frmInsTable::Form_Unload()
{
    const bool created = !window()->isEnabled(); // OK took its input away
    InsertionForm::Form_Unload();
    if (created)
        frmMdi().SetStatusReady();
}
