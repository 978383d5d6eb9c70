#include "texttools/frmChangeCase.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/text.h"
#include "widgets/layout.h"

#include <QPushButton>
#include <QRadioButton>

frmChangeCase::frmChangeCase(ProgramContext &context) : DialogForm(context, QStringLiteral("frmChangeCase"))
{
    setCaption(QStringLiteral("Change Case"));
}

void frmChangeCase::Form_Load()
{
    optUppercase = ui::option(QStringLiteral("optUppercase"), QStringLiteral("UPPERCASE"));
    optLowerCase = ui::option(QStringLiteral("optLowerCase"), QStringLiteral("lowercase"));
    optUppercase->setChecked(true);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    setContent(ui::beside({
        ui::group(QStringLiteral("Change selection to"), ui::options({optUppercase, optLowerCase})),
        ui::buttons({cmdOK, cmdCancel}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmChangeCase::cmdOK_Click()
{
    if (Document *document = frmMdi().activeDocument()) {
        TextSurface &edit = document->txtEdit();
        edit.setSelText(optLowerCase->isChecked() ? LCase(edit.SelText()) : UCase(edit.SelText()));
    }
    Unload();
}
