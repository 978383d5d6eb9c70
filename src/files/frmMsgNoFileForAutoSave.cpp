#include "files/frmMsgNoFileForAutoSave.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "files/unsavedDocuments.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/controlName.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace
{
ui::Node paragraphs(const QStringList &texts)
{
    QList<ui::Node> labels;
    for (int i = 0; i < texts.size(); ++i) {
        QLabel *label = ui::label(controlName(QStringLiteral("lblMessage"), i), texts[i]);
        label->setWordWrap(true);
        labels.append(label);
    }
    return ui::column(labels);
}
} // namespace

frmMsgNoFileForAutoSave::frmMsgNoFileForAutoSave(ProgramContext &context)
    : Form(context, QStringLiteral("frmMsgNoFileForAutoSave"))
{
    setCaption(QStringLiteral("File Does Not Exist for Automatic Save"));
}

void frmMsgNoFileForAutoSave::Form_Load()
{
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&Save"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel =
        ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { cmdCancel_Click(); });
    QPushButton *cmdIgnore =
        ui::button(QStringLiteral("cmdIgnore"), QStringLiteral("&Ignore"), [this] { cmdIgnore_Click(); });
    chkDontReshow = ui::check(QStringLiteral("chkDontReshow"), QStringLiteral("&Do not show this message again."));
    setContent(ui::beside({
        ui::column({
            paragraphs({
                QStringLiteral("To save this document now, choose Save."),
                QStringLiteral("If you do not want to save this document at the moment, but want to be notified "
                               "again, choose Cancel."),
                QStringLiteral("If you choose to ignore this error, autosave will be disabled for the document until "
                               "the next time it is opened."),
                QStringLiteral("To prevent this message from appearing again, check the \"Do not show this message "
                               "again\" box."),
            }),
            chkDontReshow,
            ui::space(),
        }),
        ui::buttons({cmdOK, cmdCancel, cmdIgnore}),
    }));
    window()->setMinimumWidth(500);
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmMsgNoFileForAutoSave::cmdOK_Click()
{
    Unload();
    m_document->activate();
    context().files->SaveDocumentAs(false, saveAsTitle(*m_document));
}

// Of the two, it is Cancel that stops the automatic saving, and Ignore that lets it ask again.
void frmMsgNoFileForAutoSave::cmdCancel_Click()
{
    m_document->setAutoSaveEnabled(false);
    Unload();
    m_document->txtEdit().SetFocus();
}

void frmMsgNoFileForAutoSave::cmdIgnore_Click()
{
    Unload();
    m_document->txtEdit().SetFocus();
}

void frmMsgNoFileForAutoSave::Form_Unload()
{
    if (chkDontReshow->isChecked())
        settings::writeBoolean(services().settings, settings::AutoSaveUnsavedNotification, false);
}
