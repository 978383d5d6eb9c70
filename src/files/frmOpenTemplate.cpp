#include "files/frmOpenTemplate.h"

#include "files/modTemplates.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

frmOpenTemplate::frmOpenTemplate(ProgramContext &context) : DialogForm(context, QStringLiteral("frmOpenTemplate"))
{
    setCaption(QStringLiteral("Open Template"));
}

void frmOpenTemplate::Form_Load()
{
    optNew = ui::option(QStringLiteral("optNew"), QStringLiteral("Create a &new document using the template."));
    optEdit = ui::option(QStringLiteral("optEdit"), QStringLiteral("&Edit the Template."));
    optNew->setChecked(true);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    setContent(ui::beside({
        ui::column({
            ui::label(QStringLiteral("lblQuestion"), QStringLiteral("Would you like to:")),
            ui::options({optNew, optEdit}),
            ui::space(),
        }),
        ui::buttons({cmdOK, cmdCancel}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmOpenTemplate::cmdOK_Click()
{
    const bool asNew = optNew->isChecked();
    Unload();
    OpenStandardTemplate(context(), m_path, asNew);
}
