#include "shell/frmWelcome.h"

#include "common/mainWindow.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QPushButton>

frmWelcome::frmWelcome(ProgramContext &context) : Form(context, QStringLiteral("frmWelcome")) {}

void frmWelcome::Form_Load()
{
    setCaption(QStringLiteral("Welcome to Harbline's Tagwrighter"));
    // The main window asks for this form whatever the spelling of the setting; in lower case, it is decided here.
    if (settings::read(services().settings, settings::WelcomeScreen).toLower() == u"false") {
        Unload();
        return;
    }
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { Unload(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    QLabel *lblWelcome =
        ui::label(QStringLiteral("lblWelcome"),
                  QStringLiteral("Open a page from the File menu, or make a new one with the New button."));
    lblWelcome->setWordWrap(true);
    setContent(ui::beside({ui::column({lblWelcome, ui::space()}), ui::buttons({cmdOK, cmdCancel})}));
    window()->setMinimumSize(460, 160);
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmWelcome::Form_Unload()
{
    frmMdi().setEnabled(true);
    frmMdi().SetStatusReady();
}
