#include "codeknowledge/frmRenameCodeEntry.h"

#include "codeknowledge/codeEntry.h"
#include "codeknowledge/codeTitleBoxes.h"
#include "common/paths.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QLineEdit>
#include <QPushButton>

frmRenameCodeEntry::frmRenameCodeEntry(ProgramContext &context) : Form(context, QStringLiteral("frmRenameCodeEntry"))
{
    setCaption(QStringLiteral("Rename Code"));
}

std::optional<QString> frmRenameCodeEntry::rename(const QString &path)
{
    m_path = path;
    m_renamed.reset();
    ShowModal();
    return m_renamed;
}

void frmRenameCodeEntry::Form_Load()
{
    txtCodeTitle = ui::text(QStringLiteral("txtCodeTitle"));
    txtCodeTitle->setText(entryTitle(FileNameOnly(m_path)));
    txtCodeTitle->setMinimumWidth(txtCodeTitle->fontMetrics().averageCharWidth() * 36);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setContent(
        ui::beside({ui::rows({ui::row(QStringLiteral("&Title:"), txtCodeTitle)}), ui::buttons({cmdOK, cmdCancel})}));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmRenameCodeEntry::cmdOK_Click()
{
    const QString title = txtCodeTitle->text();
    const QString target = joinPath(folderOf(m_path), entryFileName(title));
    if (target == m_path) {
        Unload();
        return;
    }
    if (!isValidEntryTitle(title)) {
        tellInvalidTitle(services(), *txtCodeTitle);
    } else if (services().files.exists(target)) {
        tellTitleTaken(services(), title);
    } else if (move(target)) {
        m_renamed = target;
        Unload();
    } else {
        services().messageBoxes.show(
            {QStringLiteral("Unable to Complete Operation"),
             QStringLiteral("The code library file named \"%1\" could not be renamed.").arg(m_path),
             MessageIcon::Critical, MessageButtons::OK});
    }
}

/// The old file goes only once the new one is on the disk, and the new one goes if the old one stays.
bool frmRenameCodeEntry::move(const QString &target)
{
    FileSystem &files = services().files;
    if (files.copyFile(m_path, target))
        return false;
    if (!files.removeFile(m_path))
        return true;
    files.removeFile(target);
    return false;
}
