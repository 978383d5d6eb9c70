#include "extensions/frmAddInManager.h"

#include "extensions/modAddIns.h"
#include "forms/modLaunchHTMLHelp.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/checkList.h"
#include "widgets/layout.h"

#include <QPushButton>

namespace
{
const QString NumberMark = QStringLiteral(" (ID: ");

MessageBox removalQuestion(const QString &name)
{
    return {.title = QStringLiteral("Confirm Removal of Addin Link"),
            .text = QStringLiteral("Are you sure you want to permanently remove the Add-In link named \"") + name +
                    QStringLiteral("\"?"),
            .icon = MessageIcon::Question,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}
} // namespace

QString addInRow(const QString &name, int number)
{
    return name + NumberMark + QString::number(number) + u')';
}

std::optional<AddInRow> parseAddInRow(const QString &row)
{
    const qsizetype mark = row.lastIndexOf(NumberMark);
    if (mark < 0 || !row.endsWith(u')'))
        return std::nullopt;
    bool isNumber = false;
    const qsizetype digits = mark + NumberMark.size();
    const int number = row.sliced(digits).chopped(1).toInt(&isNumber);
    return isNumber ? std::optional(AddInRow{row.first(mark), number}) : std::nullopt;
}

frmAddInManager::frmAddInManager(ProgramContext &context) : DialogForm(context, QStringLiteral("frmAddInManager"))
{
    setCaption(QStringLiteral("Add-In Manager"));
}

void frmAddInManager::Form_Load()
{
    lstAddIns = ui::checkList(QStringLiteral("lstAddIns"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    const auto help = [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_Global_AddInManager.htm"));
    };
    setContent(ui::beside({
        ui::under(QStringLiteral("&Show the following Add-Ins:"), lstAddIns),
        ui::buttons({
            cmdOK,
            cmdCancel,
            ui::button(QStringLiteral("cmdAdd"), QStringLiteral("&Add..."), [this] { cmdAdd_Click(); }),
            ui::button(QStringLiteral("cmdRemove"), QStringLiteral("&Remove"), [this] { cmdRemove_Click(); }),
            ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), help),
        }),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
    fillList();
}

void frmAddInManager::fillList()
{
    lstAddIns->clear();
    for (const AddIn &addIn : installedAddIns(services().settings))
        lstAddIns->addRow(addInRow(addIn.name, addIn.number), addIn.shown);
}

void frmAddInManager::cmdAdd_Click()
{
    const auto chosen = services().commonDialogs.showOpen(
        {.DialogTitle = {},
         .Filter = settings::read(services().settings, settings::InstallAddInsDialogFilter),
         .FilterIndex = 1,
         .InitDir = {},
         .FileName = {}});
    if (!chosen || chosen->fileName.isEmpty())
        return;
    installAddIn(services().settings, chosen->fileName);
    fillList();
}

void frmAddInManager::cmdRemove_Click()
{
    const QListWidgetItem *chosen = lstAddIns->currentItem();
    const auto addIn = chosen ? parseAddInRow(chosen->text()) : std::nullopt;
    if (!addIn || services().messageBoxes.show(removalQuestion(addIn->name)) != MessageAnswer::Yes)
        return;
    removeAddIn(services().settings, addIn->number);
    delete lstAddIns->takeItem(lstAddIns->currentRow());
}

void frmAddInManager::cmdOK_Click()
{
    for (int row = 0; row < lstAddIns->count(); ++row)
        if (const auto addIn = parseAddInRow(lstAddIns->item(row)->text()))
            showAddIn(services().settings, addIn->number, lstAddIns->isTicked(row));
    Unload();
}

void frmAddInManager::Form_Unload()
{
    FillAddInMenu(context());
    DialogForm::Form_Unload();
}
