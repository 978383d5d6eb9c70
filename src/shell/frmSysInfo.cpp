#include "shell/frmSysInfo.h"

#include "services/clipboard.h"
#include "services/services.h"
#include "widgets/layout.h"
#include "widgets/listView.h"

#include <QPushButton>

frmSysInfo::frmSysInfo(ProgramContext &context) : Form(context, QStringLiteral("frmSysInfo"))
{
    setCaption(QStringLiteral("System Information"));
}

QString factsText(const QList<SystemFact> &facts)
{
    QString text;
    for (const SystemFact &fact : facts)
        text += QStringLiteral("%1: %2\r\n").arg(fact.name, fact.value);
    return text;
}

void frmSysInfo::Form_Load()
{
    ListView *lstFacts = ui::listView(QStringLiteral("lstFacts"), {QStringLiteral("Item"), QStringLiteral("Value")});
    lstFacts->setAccessibleName(QStringLiteral("System information"));
    for (const SystemFact &fact : m_facts)
        lstFacts->addRow({.key = fact.name, .text = fact.name, .subItems = {fact.value}});
    lstFacts->fitFirstColumn();
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { Unload(); });
    QPushButton *cmdCopy = ui::button(QStringLiteral("cmdCopy"), QStringLiteral("&Copy"), [this] { cmdCopy_Click(); });
    setContent(ui::beside({ui::Node(lstFacts), ui::buttons({cmdClose, cmdCopy})}));
    window()->setMinimumSize(600, 340);
    setDefaultButton(cmdClose);
    setCancelButton(cmdClose);
}

void frmSysInfo::cmdCopy_Click()
{
    services().clipboard.setText(factsText(m_facts));
}
