// The main window's knowledge of HTML and CSS: its load, the code tree, and the lists of the code assistant.
#include "codeknowledge/codeInsertion.h"
#include "codeknowledge/codeLibraries.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiPane.h"
#include "services/services.h"
#include "widgets/controls.h"
#include "widgets/nodeTree.h"

#include <QListWidget>

void frmMdi::loadCodes()
{
    m_codes->LoadCodeLibraries(services().files, services().appPath);
    fillCodeTree();
    fillCodeLists();
}

void frmMdi::fillCodeTree()
{
    NodeTree *treCodes = m_pane->treCodes;
    treCodes->showNodesOf(m_codes->tree());
    if (m_codes->isComplete())
        for (const QString &root : {QStringLiteral("css"), QStringLiteral("html")})
            treCodes->expandNode(*treCodes->find(root));
    connect(treCodes, &NodeTree::nodeDoubleClicked, this, [this](int node) { treCodes_DblClick(context(), node); });
    connect(treCodes, &NodeTree::nodeEntered, this, [this](int node) { treCodes_Enter(context(), node); });
}

/// The lists stand in the window as hidden controls, for those who look at its controls by their names.
void frmMdi::fillCodeLists()
{
    const CodeElements &elements = m_codes->elements();
    const auto fill = [this](const char *name, const QStringList &rows) {
        QListWidget *list = ui::list(QLatin1String(name));
        list->setParent(window());
        list->hide();
        list->addItems(rows);
    };
    fill("lstCodeAssistantElements", elements.lstCodeAssistantElements);
    fill("lstCodeAssistantElementsFull", elements.lstCodeAssistantElementsFull);
    fill("lstCodeAssistantSyntax", elements.lstCodeAssistantSyntax);
}
