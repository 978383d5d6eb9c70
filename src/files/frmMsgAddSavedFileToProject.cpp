#include "files/frmMsgAddSavedFileToProject.h"

#include "common/mainWindow.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

frmMsgAddSavedFileToProject::frmMsgAddSavedFileToProject(ProgramContext &context)
    : Form(context, QStringLiteral("frmMsgAddSavedFileToProject"))
{
    setCaption(QStringLiteral("Add file to Site Project"));
}

void frmMsgAddSavedFileToProject::Form_Load()
{
    QLabel *lblQuestion =
        ui::label(QStringLiteral("lblQuestion"),
                  QStringLiteral("Do you want to add the file that you have just saved to the open Site Project?"));
    QLabel *lblExplanation =
        ui::label(QStringLiteral("lblExplanation"),
                  QStringLiteral("To add the file to the open Site Project, click Yes. If you do not want to add the "
                                 "file to the open site project, click No."));
    lblQuestion->setWordWrap(true);
    lblExplanation->setWordWrap(true);
    cboQuestionAsk = ui::dropList(
        QStringLiteral("cboQuestionAsk"),
        {QStringLiteral("Always"), QStringLiteral("Not again for this session"), QStringLiteral("Never!")});
    cboQuestionAsk->setCurrentText(QStringLiteral("Always"));
    QPushButton *cmdYes = ui::button(QStringLiteral("cmdYes"), QStringLiteral("&Yes"), [this] { answer(true); });
    QPushButton *cmdNo = ui::button(QStringLiteral("cmdNo"), QStringLiteral("&No"), [this] { answer(false); });
    setContent(ui::beside({
        ui::column({
            lblQuestion,
            lblExplanation,
            ui::rows({ui::row(QStringLiteral("&Ask me this question"), cboQuestionAsk)}),
            ui::space(),
        }),
        ui::buttons({cmdYes, cmdNo}),
    }));
    window()->setMinimumWidth(480);
    setDefaultButton(cmdYes);
    setCancelButton(cmdNo);
}

void frmMsgAddSavedFileToProject::answer(bool add)
{
    frmMdi().AddSavedFileAnswer = add;
    settings::writeBoolean(services().settings, settings::ShowAddFileToProjectAnswer, add);
    Unload();
}

bool frmMsgAddSavedFileToProject::Form_QueryUnload()
{
    // The list's row reads "Never!", so that choosing it stores nothing: the question comes again.
    if (cboQuestionAsk->currentText() == u"Never")
        settings::writeBoolean(services().settings, settings::ShowAddFileToProjectQuestion, false);
    else if (cboQuestionAsk->currentText() == u"Not again for this session")
        frmMdi().AskedForThisSession = true;
    return true;
}
