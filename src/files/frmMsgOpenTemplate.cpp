#include "files/frmMsgOpenTemplate.h"

#include "common/fileCommands.h"
#include "common/paths.h"
#include "files/templateMessages.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

frmMsgOpenTemplate::frmMsgOpenTemplate(ProgramContext &context) : Form(context, QStringLiteral("frmMsgOpenTemplate"))
{
    setCaption(QStringLiteral("Accompanying Template Files"));
}

void frmMsgOpenTemplate::Form_Load()
{
    m_answer = {};
    QLabel *lblTitle =
        ui::label(QStringLiteral("lblTitle"), QStringLiteral("Do you want to save the template's accompanying files?"));
    QLabel *lblMessage = ui::label(QStringLiteral("lblMessage"), accompanyingFilesText(m_count));
    lblMessage->setWordWrap(true);
    const auto option = [this](const char *name, const char *caption) {
        return ui::option(QLatin1String(name), QLatin1String(caption), [this] { choice_Click(); });
    };
    optNormalSave =
        option("optNormalSave", "Save accompanying files in the same directory as the new document (recommended)");
    optDifferentLocation = option("optDifferentLocation", "Save accompanying files to a different location:");
    optNoSave = option("optNoSave", "Do not save any accompanying files");
    txtNewLocation = ui::text(QStringLiteral("txtNewLocation"));
    txtNewLocation->setAccessibleName(QStringLiteral("Different location"));
    cmdBrowse = ui::button(QStringLiteral("cmdBrowse"), QStringLiteral("&Browse..."), [this] { cmdBrowse_Click(); });
    QPushButton *cmdYesOK = ui::button(QStringLiteral("cmdYesOK"), QStringLiteral("&OK"), [this] { cmdYesOK_Click(); });
    QPushButton *cmdNoCancel =
        ui::button(QStringLiteral("cmdNoCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setContent(ui::beside({
        ui::column({
            lblTitle,
            lblMessage,
            ui::label(QStringLiteral("lblPrompt"), QStringLiteral("How would you like to proceed?")),
            ui::options({optNormalSave, optDifferentLocation, optNoSave}),
            ui::line({ui::Node(txtNewLocation).stretched(), cmdBrowse}),
            ui::space(),
        }),
        ui::buttons({cmdYesOK, cmdNoCancel}),
    }));
    window()->setMinimumWidth(560);
    setDefaultButton(cmdYesOK);
    setCancelButton(cmdNoCancel);
    optNormalSave->setChecked(true);
    choice_Click();
}

void frmMsgOpenTemplate::choice_Click()
{
    txtNewLocation->setEnabled(optDifferentLocation->isChecked());
    cmdBrowse->setEnabled(optDifferentLocation->isChecked());
}

void frmMsgOpenTemplate::cmdBrowse_Click()
{
    const std::optional<QString> folder =
        services().commonDialogs.showFolder(QStringLiteral("Accompanying Files"), txtNewLocation->text());
    if (folder && !folder->isEmpty())
        txtNewLocation->setText(*folder);
}

TemplateAction frmMsgOpenTemplate::chosen() const
{
    if (optNormalSave->isChecked())
        return TemplateAction::SaveBeside;
    return optNoSave->isChecked() ? TemplateAction::DoNotSave : TemplateAction::SaveInFolder;
}

void frmMsgOpenTemplate::cmdYesOK_Click()
{
    const QString folder = txtNewLocation->text();
    const bool usable = QDir::isAbsolutePath(folder) && services().files.isFolder(folder);
    if (chosen() == TemplateAction::SaveInFolder && !usable) {
        // Told here, where it can be put right, and not once for every file.
        context().files->FileErrors(PathNotFoundError);
        txtNewLocation->setFocus();
        return;
    }
    m_answer = {chosen(), joinPath(folder, QString())};
    Unload();
}
