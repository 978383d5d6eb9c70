#include "document/frmWrapAbbreviation.h"

#include "document/handCommands.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QLineEdit>
#include <QPushButton>

frmWrapAbbreviation::frmWrapAbbreviation(ProgramContext &context)
    : DialogForm(context, QStringLiteral("frmWrapAbbreviation"))
{
    setCaption(QStringLiteral("Wrap With Abbreviation"));
}

void frmWrapAbbreviation::Form_Load()
{
    txtAbbreviation = ui::text(QStringLiteral("txtAbbreviation"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Abbreviations.htm"));
    });
    setContent(ui::beside({
        ui::column({ui::rows({ui::row(QStringLiteral("&Abbreviation:"), txtAbbreviation)}), ui::space()}),
        ui::buttons({cmdOK, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmWrapAbbreviation::cmdOK_Click()
{
    if (WrapWithAbbreviation(context(), txtAbbreviation->text())) {
        Unload();
        return;
    }
    services().messageBoxes.show({.title = QStringLiteral("Wrap With Abbreviation"),
                                  .text = QStringLiteral("This abbreviation can not be read, or its innermost element "
                                                         "has no place for the text."),
                                  .icon = MessageIcon::Exclamation,
                                  .buttons = MessageButtons::OK});
    SelectAllText(txtAbbreviation);
}
