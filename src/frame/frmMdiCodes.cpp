// The main window's knowledge of HTML and CSS: its load, the code tree, and the lists of the code assistant.
#include "codeknowledge/codeInsertion.h"
#include "codeknowledge/codeLibraries.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiPane.h"
#include "services/programFiles.h"
#include "services/services.h"
#include "widgets/nodeTree.h"
#include "widgets/rowsModel.h"

#include <QListView>

void frmMdi::loadCodes()
{
    m_codes->LoadCodeLibraries(services().files, programFile(services(), QStringLiteral("Html.tcb")),
                               programFile(services(), QStringLiteral("Css.tcb")));
    fillCodeTree();
    fillCodeLists();
}

void frmMdi::fillCodeTree()
{
    NodeTree *treCodes = m_pane->treCodes;
    treCodes->showNodesOf(m_codes->tree());
    treCodes->atFirstLook([this, treCodes] {
        if (m_codes->isComplete())
            for (const QString &root : {QStringLiteral("css"), QStringLiteral("html")})
                treCodes->expandNode(*treCodes->find(root));
    });
    connect(treCodes, &NodeTree::nodeDoubleClicked, this, [this](int node) { treCodes_DblClick(context(), node); });
    connect(treCodes, &NodeTree::nodeEntered, this, [this](int node) { treCodes_Enter(context(), node); });
}

/// The lists stand in the window as hidden controls, for those who look at its controls by their names.
void frmMdi::fillCodeLists()
{
    const auto show = [this](const char *name, auto count, auto text) {
        auto *list = new QListView(window());
        list->setObjectName(QLatin1String(name));
        list->hide();
        list->setModel(new RowsModel(count, text, list));
    };
    const auto rowsOf = [this, show](const char *name, QStringList CodeElements::*rows) {
        show(
            name, [this, rows] { return static_cast<int>((m_codes->elements().*rows).size()); },
            [this, rows](int row) { return (m_codes->elements().*rows).value(row); });
    };
    rowsOf("lstCodeAssistantElements", &CodeElements::lstCodeAssistantElements);
    rowsOf("lstCodeAssistantElementsFull", &CodeElements::lstCodeAssistantElementsFull);
    show(
        "lstCodeAssistantSyntax", [this] { return m_codes->syntaxCount(); },
        [this](int row) { return m_codes->lstCodeAssistantSyntax(row); });
}
