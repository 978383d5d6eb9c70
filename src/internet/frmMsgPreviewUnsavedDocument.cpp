#include "internet/frmMsgPreviewUnsavedDocument.h"

#include "common/programState.h"
#include "forms/modLaunchHTMLHelp.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

frmMsgPreviewUnsavedDocument::frmMsgPreviewUnsavedDocument(ProgramContext &context)
    : Form(context, QStringLiteral("frmMsgPreviewUnsavedDocument"))
{
    setCaption(QStringLiteral("Preview Unsaved Document in Browser"));
}

void frmMsgPreviewUnsavedDocument::Form_Load()
{
    m_answered = false;
    QLabel *lblMessage = ui::label(
        QStringLiteral("lblMessage"),
        QStringLiteral("This document has not been saved since it was last modified.  The document must be saved as a "
                       "file before you can proceed.  Tagwrighter can do the following:"));
    lblMessage->setWordWrap(true);
    optSaveDoc = ui::option(QStringLiteral("optSaveDoc"),
                            QStringLiteral("Save the document and then load it into the browser."));
    optSaveTempCopy = ui::option(
        QStringLiteral("optSaveTempCopy"),
        QStringLiteral("A temporary copy of the document can be saved which is then loaded into the browser."));
    chkDontReshow = ui::check(QStringLiteral("chkDontReshow"), QStringLiteral("&Do not show this message again."));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel =
        ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { cmdCancel_Click(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"), [this] { cmdHelp_Click(); });
    setContent(ui::beside({
        ui::column({lblMessage, ui::options({optSaveDoc, optSaveTempCopy}), chkDontReshow, ui::space()}),
        ui::buttons({cmdOK, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmMsgPreviewUnsavedDocument::Form_Activate()
{
    const bool byCopy = settings::previewsByCopy(services().settings);
    (byCopy ? optSaveTempCopy : optSaveDoc)->setChecked(true);
}

void frmMsgPreviewUnsavedDocument::cmdOK_Click()
{
    context().state.PreviewUseTempCopy = optSaveTempCopy->isChecked();
    m_answered = true;
    Unload();
}

void frmMsgPreviewUnsavedDocument::cmdCancel_Click()
{
    context().state.PreviewCancelled = true;
    m_answered = true;
    Unload();
}

void frmMsgPreviewUnsavedDocument::cmdHelp_Click()
{
    OpenHelpTopic(context(), QStringLiteral("::/topics/using/Message_UnsavedDocument_BrowserPreview.htm"));
}

void frmMsgPreviewUnsavedDocument::Form_Unload()
{
    // Whoever closes the question has agreed to nothing, least of all to a save.
    if (!m_answered)
        context().state.PreviewCancelled = true;
    if (chkDontReshow->isChecked())
        settings::writeBoolean(services().settings, settings::DontShowPreviewUnsavedFile, true);
}
