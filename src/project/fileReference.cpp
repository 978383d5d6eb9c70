#include "project/fileReference.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/messageBoxes.h"
#include "services/services.h"

#include <QComboBox>
#include <QLineEdit>

namespace
{
const QStringList sounds{QStringLiteral("WAV"),  QStringLiteral("MP3"),  QStringLiteral("AIF"),
                         QStringLiteral("AIFC"), QStringLiteral("AIFF"), QStringLiteral("AU"),
                         QStringLiteral("SND"),  QStringLiteral("MID"),  QStringLiteral("RMI")};
const QStringList pictures{QStringLiteral("GIF"), QStringLiteral("JPG"), QStringLiteral("JPEG"), QStringLiteral("BMP"),
                           QStringLiteral("DIB"), QStringLiteral("ICO"), QStringLiteral("CUR")};
const QStringList films{QStringLiteral("MPG"), QStringLiteral("MPEG"), QStringLiteral("MOV"), QStringLiteral("QT"),
                        QStringLiteral("AVI"), QStringLiteral("RM"),   QStringLiteral("RA"),  QStringLiteral("RAM")};

void setText(QObject *field, const QString &text)
{
    if (auto *box = qobject_cast<QLineEdit *>(field))
        box->setText(text);
    else if (auto *combo = qobject_cast<QComboBox *>(field))
        combo->setEditText(text);
}
} // namespace

ReferenceDialog referenceDialogFor(const QString &path)
{
    const QString extension = GetFileExtension(path).toUpper();
    if (sounds.contains(extension))
        return {QStringLiteral("frmInsBgSound"), QStringLiteral("txtBgSound")};
    if (pictures.contains(extension))
        return {QStringLiteral("frmInsImage"), QStringLiteral("cboSrc")};
    if (films.contains(extension))
        return {QStringLiteral("frmInsVideo"), QStringLiteral("txtPath")};
    return {QStringLiteral("frmInsHyperlink"), QStringLiteral("cboUrl")};
}

void InsertFileReference(ProgramContext &context, const QString &path)
{
    if (context.mainWindow->openDocuments().isEmpty()) {
        context.services.messageBoxes.show(
            {.title = QStringLiteral("No Editor File Open"),
             .text = QStringLiteral("There are no editor files open. The file can not be inserted.  Please open an "
                                    "editor file before trying again."),
             .icon = MessageIcon::Exclamation,
             .buttons = MessageButtons::OK});
        context.mainWindow->setEnabled(true);
        return;
    }
    const ReferenceDialog dialog = referenceDialogFor(path);
    Form *form = context.forms.find(dialog.form);
    if (!form)
        return;
    form->Show();
    if (form->isLoaded())
        setText(form->control(dialog.field), path);
}
