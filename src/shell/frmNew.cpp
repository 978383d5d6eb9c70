#include "shell/frmNew.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/frmOpenTemplate.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/modNewControl.h"
#include "widgets/fileControls.h"
#include "widgets/layout.h"
#include "widgets/listView.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>

frmNew::frmNew(ProgramContext &context) : Form(context, QStringLiteral("frmNew"))
{
    setCaption(QStringLiteral("Create New Document"));
}

void frmNew::prepareLoad()
{
    frmMdi().setEnabled(false);
}

void frmNew::Form_Load()
{
    buildControls();
    FillNewDocumentList(services().settings, *dirTemplates, *lstNew);
    lstNew->setHotTracking(settings::isOn(services().settings, settings::HotTrackingFiles));
}

void frmNew::buildControls()
{
    lstNew = ui::listView(QStringLiteral("lstNew"), {QStringLiteral("Template Name"), QStringLiteral("Type")},
                          {.selection = [this] { lstNew_Selection(); }, .dblClick = [this](int) { cmdOK_Click(); }});
    dirTemplates = ui::fileList(QStringLiteral("dirTemplates"), services().files);
    txtPreview = ui::textArea(QStringLiteral("txtPreview"));
    txtPreview->setReadOnly(true);
    txtPreview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtPreview->setLineWrapMode(QPlainTextEdit::NoWrap);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    cmdEdit = ui::button(QStringLiteral("cmdEdit"), QStringLiteral("&Edit..."), [this] { cmdEdit_Click(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_File_New.htm"));
    });
    setContent(ui::beside({
        ui::column({
            ui::under(QStringLiteral("Choose a template to use:"), lstNew, QStringLiteral("lblInstructions")),
            ui::under(QStringLiteral("&Preview:"), txtPreview, QStringLiteral("lblPreview")),
            ui::hidden(dirTemplates),
        }),
        ui::buttons({cmdOK, cmdCancel, cmdEdit, cmdHelp}),
    }));
    window()->setMinimumSize(560, 440);
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmNew::lstNew_Selection()
{
    const QString path = selectedTemplate(services().settings, *lstNew);
    const bool standard = !path.isEmpty() && GetFileExtension(path).toLower() != u"ctp";
    cmdEdit->setEnabled(standard);
    txtPreview->setPlainText(path.isEmpty() ? QString() : templatePreview(services().files, path));
}

void frmNew::cmdOK_Click()
{
    if (OpenSelectedTemplate(context(), *lstNew))
        Unload();
}

void frmNew::cmdEdit_Click()
{
    const QString path = selectedTemplate(services().settings, *lstNew);
    Unload();
    auto &question = context().forms.get<frmOpenTemplate>();
    question.setPath(path);
    question.Show();
}

void frmNew::Form_Unload()
{
    frmMdi().setEnabled(true);
    if (Document *document = frmMdi().activeDocument()) {
        document->UndoRedoChange();
        document->txtEdit().SetFocus();
    }
}
