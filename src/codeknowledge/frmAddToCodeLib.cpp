#include "codeknowledge/frmAddToCodeLib.h"

#include "codeknowledge/codeEntry.h"
#include "codeknowledge/codeTitleBoxes.h"
#include "common/document.h"
#include "common/encodings.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{
constexpr int CharactersShown = 48;
}

frmAddToCodeLib::frmAddToCodeLib(ProgramContext &context) : DialogForm(context, QStringLiteral("frmAddToCodeLib"))
{
    setCaption(QStringLiteral("Add Code Segment to Library"));
}

/// The folder of the user's own entries may be missing. That it be made is offered here, since an Add without it fails.
void frmAddToCodeLib::Form_Load()
{
    txtCodeTitle = ui::text(QStringLiteral("txtCodeTitle"));
    txtCodeTitle->setMinimumWidth(txtCodeTitle->fontMetrics().averageCharWidth() * CharactersShown);
    txtDescription = ui::textArea(QStringLiteral("txtDescription"));
    chkCreateFolder = ui::check(QStringLiteral("chkCreateFolder"),
                                QStringLiteral("Create the library's &folder \"User\", which does not exist"));
    QPushButton *cmdAdd = ui::button(QStringLiteral("cmdAdd"), QStringLiteral("&Add"), [this] { cmdAdd_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    setContent(ui::beside({
        ui::column({
            ui::rows({ui::row(QStringLiteral("&Title:"), txtCodeTitle)}),
            ui::under(QStringLiteral("&Description:"), txtDescription).stretched(),
            chkCreateFolder,
        }),
        ui::buttons({cmdAdd, cmdCancel}),
    }));
    chkCreateFolder->setVisible(!services().files.isFolder(folder()));
    setDefaultButton(cmdAdd);
    setCancelButton(cmdCancel);
}

QString frmAddToCodeLib::folder() const
{
    return joinPath(settings::read(services().settings, settings::CodeLibDir), QStringLiteral("User"));
}

void frmAddToCodeLib::cmdAdd_Click()
{
    const QString title = txtCodeTitle->text();
    const QString path = joinPath(folder(), entryFileName(title));
    if (services().files.exists(path)) {
        tellTitleTaken(services(), title);
    } else if (!isValidEntryTitle(title)) {
        tellInvalidTitle(services(), *txtCodeTitle);
    } else if (write(path)) {
        Unload();
    } else {
        services().messageBoxes.show({QStringLiteral("Unable to Complete Operation"),
                                      QStringLiteral("An error occurred while trying to add the code selection to the "
                                                     "code library. Tagwrighter was unable to complete the operation."),
                                      MessageIcon::Critical, MessageButtons::OK});
    }
}

bool frmAddToCodeLib::write(const QString &path)
{
    Document *document = frmMdi().activeDocument();
    if (chkCreateFolder->isChecked() && services().files.makeFolder(folder()))
        return false;
    if (!document || !services().files.isFolder(folder()))
        return false;
    const QString text = codeEntryText(document->txtEdit().SelText(), ui::textOf(*txtDescription));
    return !services().files.writeWhole(path, encodeOwnFile(text));
}
