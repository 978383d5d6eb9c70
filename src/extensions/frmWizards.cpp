#include "extensions/frmWizards.h"

#include "extensions/modWizards.h"
#include "forms/modLaunchHTMLHelp.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/programIcon.h"

#include <QLabel>
#include <QPushButton>

namespace
{
constexpr int WizardImage = 1; ///< the one icon of the list
}

frmWizards::frmWizards(ProgramContext &context) : DialogForm(context, QStringLiteral("frmWizards"))
{
    setCaption(QStringLiteral("Wizards"));
}

void frmWizards::Form_Load()
{
    const std::optional<QStringList> names = availableWizards(context());
    if (!isLoaded()) // the program has ended while the component was asked
        return;
    buildControls();
    if (!names) {
        tellNoWizards(context());
        Unload();
        return;
    }
    for (const QString &name : *names)
        lstAvailWizards->addRow({.key = {}, .text = name, .smallIcon = WizardImage, .subItems = {}, .tag = {}});
    lstAvailWizards->selectRow(0);
}

void frmWizards::buildControls()
{
    QLabel *lblInfo = ui::label(QStringLiteral("lblInfo"),
                                QStringLiteral("Wizards help you to quickly perform time consuming and complicated "
                                               "tasks.  To begin, simply choose the wizard you need from the list and "
                                               "click OK."));
    lblInfo->setWordWrap(true);
    lstAvailWizards = ui::listView(QStringLiteral("lstAvailWizards"), {QStringLiteral("Wizard")},
                                   {.selection = {}, .dblClick = [this](int) { RunSelectedWizard(); }});
    lstAvailWizards->setSmallIcons({programIcon(QStringLiteral("file-plus"))});
    lstAvailWizards->setHeaderHidden(true);
    lstAvailWizards->setAccessibleName(QStringLiteral("Wizards"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { RunSelectedWizard(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    const auto help = [this] { OpenHelpTopic(context(), QStringLiteral("::/topics/using/About_Wizards.htm")); };
    setContent(ui::beside({
        ui::column({lblInfo, ui::Node(lstAvailWizards).stretched()}),
        ui::buttons({cmdOK, cmdCancel, ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), help)}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmWizards::RunSelectedWizard()
{
    const std::optional<int> row = lstAvailWizards->selectedRow();
    if (!row)
        return;
    Unload();
    RunWizard(context(), *row + 1);
}
