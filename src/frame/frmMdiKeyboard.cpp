// The main window for somebody without a mouse: its bars, its edges and its document selector by keyboard.
#include "frame/frmMdi.h"

#include "frame/documentStatus.h"
#include "frame/frmMdiCommands.h"
#include "frame/frmMdiPane.h"
#include "frame/paneRound.h"
#include "widgets/barKeys.h"
#include "widgets/sidePane.h"
#include "widgets/tabStrip.h"

#include <QComboBox>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace
{
struct NamedBar {
    const char *name;
    const char *spoken;
};
constexpr NamedBar bars[] = {{"tbrMain", "File and editing"},
                             {"tbrFontStyles", "Font styles"},
                             {"tbrInsert", "Insert"},
                             {"tbrCode", "Code and font"},
                             {"tbrHelp", "Help"},
                             {"tbrBrowser", "Browser"},
                             {"tbrUnsavedFiles", "Unsaved documents"}};
} // namespace

void frmMdi::buildKeyboard()
{
    auto *keys = new BarKeys(
        [this] {
            if (Document *document = activeDocument())
                document->txtEdit().SetFocus();
        },
        window());
    QList<PaneRound::Stop> stops;
    for (const NamedBar &named : bars) {
        QToolBar *bar = m_commands->toolBar(QLatin1String(named.name));
        bar->setAccessibleName(QLatin1String(named.spoken));
        keys->add(*bar);
        stops.append([bar]() -> QWidget * { return BarKeys::entrance(*bar); });
    }
    stops.append([this] { return cboAddress; });
    stops.append([this] { return m_pane->picProject(); });
    stops.append([this]() -> QWidget * {
        auto *document = dynamic_cast<Form *>(activeDocument());
        return document ? document->window()->findChild<QWidget *>(QStringLiteral("paneDivider")) : nullptr;
    });
    stops.append([this] { return tabDocSel; });
    stops.append([this] { return StatusBar1->findChild<QWidget *>(QStringLiteral("lblFileFormat")); });
    new PaneRound(*window(), stops);
}
