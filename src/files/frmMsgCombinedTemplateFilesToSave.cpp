#include "files/frmMsgCombinedTemplateFilesToSave.h"

#include "common/paths.h"
#include "files/localPaths.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/programIcon.h"

#include <QLabel>
#include <QPushButton>

frmMsgCombinedTemplateFilesToSave::frmMsgCombinedTemplateFilesToSave(ProgramContext &context)
    : Form(context, QStringLiteral("frmMsgCombinedTemplateFilesToSave"))
{
    setCaption(QStringLiteral("Save Combined Template File"));
}

void frmMsgCombinedTemplateFilesToSave::Form_Load()
{
    m_chosen.reset();
    lstAccompanyingFiles = ui::listView(QStringLiteral("lstAccompanyingFiles"),
                                        {QStringLiteral("Accompanying File"), QStringLiteral("Path")});
    lstAccompanyingFiles->setSmallIcons({programIcon(QStringLiteral("file"))});
    lstAccompanyingFiles->setAccessibleName(QStringLiteral("Accompanying files"));
    for (const QString &path : m_files)
        addFile(path);
    lstAccompanyingFiles->fitFirstColumn();
    QLabel *lblTitle = ui::label(QStringLiteral("lblTitle"), QStringLiteral("Combined Template Accompanying Files"));
    QLabel *lblMessage = ui::label(QStringLiteral("lblMessage"),
                                   QStringLiteral("These files will be saved in the template together with the page. "
                                                  "Add others that the page needs, and remove those that it can do "
                                                  "without."));
    lblMessage->setWordWrap(true);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    QPushButton *cmdAdd = ui::button(QStringLiteral("cmdAdd"), QStringLiteral("&Add..."), [this] { cmdAdd_Click(); });
    QPushButton *cmdRemove =
        ui::button(QStringLiteral("cmdRemove"), QStringLiteral("&Remove"), [this] { cmdRemove_Click(); });
    setContent(ui::beside({
        ui::column({lblTitle, lblMessage, ui::Node(lstAccompanyingFiles).stretched()}),
        ui::buttons({cmdOK, cmdCancel, cmdAdd, cmdRemove}),
    }));
    window()->setMinimumSize(560, 320);
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmMsgCombinedTemplateFilesToSave::addFile(const QString &path)
{
    lstAccompanyingFiles->addRow(
        {.key = {}, .text = FileNameOnly(path), .smallIcon = 1, .subItems = {folderOf(path)}, .tag = path});
}

bool frmMsgCombinedTemplateFilesToSave::holds(const QString &path) const
{
    for (int row = 0; row < lstAccompanyingFiles->rowCount(); ++row)
        if (lstAccompanyingFiles->rowAt(row).tag == path)
            return true;
    return false;
}

void frmMsgCombinedTemplateFilesToSave::cmdAdd_Click()
{
    const std::optional<FileDialogResult> chosen =
        services().commonDialogs.showOpen({.DialogTitle = QStringLiteral("Add Accompanying File"),
                                           .Filter = QStringLiteral("All Files (*.*)|*.*"),
                                           .FilterIndex = 1,
                                           .InitDir = {},
                                           .FileName = {}});
    if (!chosen || chosen->fileName.isEmpty() || lstAccompanyingFiles->rowCount() >= MostAccompanyingFiles)
        return;
    if (holds(chosen->fileName))
        services().messageBoxes.show({.title = QStringLiteral("File Already Added"),
                                      .text = QStringLiteral("The selected file has already been added."),
                                      .icon = MessageIcon::Exclamation,
                                      .buttons = MessageButtons::OK});
    else
        addFile(chosen->fileName);
}

void frmMsgCombinedTemplateFilesToSave::cmdRemove_Click()
{
    if (const std::optional<int> row = lstAccompanyingFiles->selectedRow())
        lstAccompanyingFiles->removeRow(*row);
}

void frmMsgCombinedTemplateFilesToSave::cmdOK_Click()
{
    QStringList paths;
    for (int row = 0; row < lstAccompanyingFiles->rowCount(); ++row)
        paths.append(lstAccompanyingFiles->rowAt(row).tag);
    m_chosen = paths;
    Unload();
}
