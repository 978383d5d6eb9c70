#include "document/pictureHands.h"

#include "common/addressText.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "common/surfaceSelection.h"
#include "document/frmPastePicture.h"
#include "document/handCommands.h"
#include "document/lineHands.h"
#include "document/pictureElement.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "pictures/pictureLoader.h"
#include "services/clipboard.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"

#include <algorithm>

namespace
{
/// A picture's address starts from the page's folder, so that the page needs one. False if it has none.
bool hasFolder(ProgramContext &context, Document &document)
{
    if (!document.DocSavePath.isEmpty())
        return true;
    const MessageBox box{.title = QStringLiteral("Picture"),
                         .text = QStringLiteral("A picture is found from the folder of its page, and this page has not "
                                                "been saved yet.\r\nDo you want to save it now?"),
                         .icon = MessageIcon::Question,
                         .buttons = MessageButtons::YesNo};
    return context.services.messageBoxes.show(box) == MessageAnswer::Yes && context.files &&
           context.files->SaveDocument(false) && !document.DocSavePath.isEmpty();
}

/// Whether elements may stand there; if not, the status bar says so.
bool takesElements(ProgramContext &context, const Document &document, qsizetype place)
{
    if (document.txtEdit().Locked())
        return false;
    if (commentSignsAt(document.txtEdit().Text(), place, document.DocSavePath) == CommentSigns::Html)
        return true;
    context.mainWindow->SetStatusText(QStringLiteral("The element of a picture has no place in a style or a script"));
    return false;
}

PictureElement elementOf(ProgramContext &context, const Document &document, const QString &file)
{
    const std::optional<LoadedPicture> picture = LoadPicture(file, QSize(1, 1));
    if (!picture)
        context.mainWindow->SetStatusText(QStringLiteral("The size of %1 could not be read").arg(FileNameOnly(file)));
    return {.address = addressFromDocument(file, document.DocSavePath, true),
            .alt = {},
            .size = picture ? picture->size : QSize()};
}

QStringList pictureFiles(const ProgramContext &context, const QStringList &files)
{
    QStringList pictures = files;
    pictures.removeIf(
        [&context](const QString &file) { return !isPictureName(file) || !context.services.files.exists(file); });
    return pictures;
}

void askForName(ProgramContext &context, Document &document)
{
    if (takesElements(context, document, document.txtEdit().SelStart()) && hasFolder(context, document))
        context.forms.get<frmPastePicture>().Show();
}
} // namespace

QStringList picturesAmong(const ProgramContext &context, const Document &document, const QStringList &files)
{
    const bool isPage = commentSignsAt({}, 0, document.DocSavePath) == CommentSigns::Html;
    return context.state.habits.HandsPictures && isPage ? pictureFiles(context, files) : QStringList();
}

void WriteElements(Document &document, const QList<PictureElement> &pictures, TextSelection place)
{
    const QString text = document.txtEdit().Text();
    const MarkupLanguage language = markupLanguage(text);
    QStringList elements;
    for (const PictureElement &picture : pictures)
        elements.append(pictureMarkup(picture, language));
    changeInOneStep(document, withPictures(text, place, elements));
}

void WritePictures(ProgramContext &context, Document &document, const QStringList &files, TextSelection place)
{
    if (context.mainWindow->activeDocument() != &document)
        document.activate();
    if (!takesElements(context, document, place.start) || !hasFolder(context, document))
        return;
    QList<PictureElement> pictures;
    for (const QString &file : files)
        pictures.append(elementOf(context, document, file));
    WriteElements(document, pictures, place);
    document.txtEdit().SetFocus();
}

bool PasteAsPicture(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document || !context.state.habits.HandsPictures)
        return false;
    Clipboard &clipboard = context.services.clipboard;
    const QStringList files = picturesAmong(context, *document, clipboard.files());
    if (files.isEmpty() && !clipboard.offersPicture())
        return false;
    if (files.isEmpty())
        askForName(context, *document);
    else
        WritePictures(context, *document, files, selectionOf(document->txtEdit()));
    return true;
}

void PastePicture(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document || PasteAsPicture(context))
        return;
    if (context.services.clipboard.picture().bytes.isEmpty())
        context.mainWindow->SetStatusText(QStringLiteral("There is no picture on the clipboard"));
    else
        askForName(context, *document);
}
