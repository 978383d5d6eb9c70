#include "insertion/frmAddMenuItem.h"

#include "widgets/layout.h"
#include "widgets/themeColour.h"

#include <QCheckBox>
#include <QLineEdit>

frmAddMenuItem::frmAddMenuItem(ProgramContext &context)
    : CompanionForm(context, {.name = QStringLiteral("frmAddMenuItem"),
                              .caption = QStringLiteral("Add List Selection Option"),
                              .okName = QStringLiteral("cmdAdd"),
                              .okCaption = QStringLiteral("&Add")})
{
}

std::optional<SelectOption> frmAddMenuItem::askForOption()
{
    m_option.reset();
    ask();
    return m_option;
}

void frmAddMenuItem::Form_Load()
{
    txtName = ui::text(QStringLiteral("txtName"), [this] { txtName_Change(); });
    txtName->setToolTip(QStringLiteral("Menu Item Name"));
    Check1 = ui::check(QStringLiteral("Check1"), QStringLiteral("Specify Value:"), [this] { Check1_Click(); });
    Check1->setToolTip(QStringLiteral("Use Submitted Value"));
    txtSubmitted = ui::text(QStringLiteral("txtSubmitted"));
    txtSubmitted->setToolTip(QStringLiteral("Submitted Value"));
    txtSubmitted->setAccessibleName(QStringLiteral("Submitted Value"));
    chkSelected = ui::check(QStringLiteral("chkSelected"), QStringLiteral("&Selected"));
    chkSelected->setToolTip(QStringLiteral("This option is selected when first displayed."));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Option Name:"), txtName),
            ui::row({}, ui::line({Check1, ui::Node(txtSubmitted, 1)})),
            ui::row({}, chkSelected),
        }),
        companionButtons(),
    }));
    Check1_Click();
}

/// As long as no other value is asked for, the field shows what is sent: the name.
void frmAddMenuItem::txtName_Change()
{
    if (!Check1->isChecked())
        txtSubmitted->setText(txtName->text());
}

void frmAddMenuItem::Check1_Click()
{
    txtSubmitted->setEnabled(Check1->isChecked());
    setBackColor(*txtSubmitted, Check1->isChecked() ? WindowColour : ButtonFaceColour);
    txtName_Change();
}

bool frmAddMenuItem::accept()
{
    if (txtName->text().isEmpty())
        return refused(QStringLiteral("No Item Name"), QStringLiteral("You have not entered a menu item name."),
                       txtName);
    m_option = SelectOption{.name = txtName->text(),
                            .value = Check1->isChecked() ? txtSubmitted->text() : QString(),
                            .selected = chkSelected->isChecked()};
    return true;
}
