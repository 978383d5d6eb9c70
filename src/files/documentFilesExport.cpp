// Saving a document's text without its tags.
#include "common/document.h"
#include "common/mainWindow.h"
#include "common/tags.h"
#include "files/documentFiles.h"
#include "forms/programContext.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/screenPointer.h"

namespace
{
MessageBox stripQuestion()
{
    return {.title = QStringLiteral("Strip HTML Tags"),
            .text = QStringLiteral("Saving the document as a Text File without HTML tags may cause a loss of "
                                   "information.\r\n\r\nDo you want to continue?"),
            .icon = MessageIcon::Question,
            .buttons = MessageButtons::YesNo};
}
} // namespace

bool DocumentFiles::SaveStrippedText(Document &document, bool closing, const QString &path)
{
    const bool wanted = m_context.services.messageBoxes.show(stripQuestion()) == MessageAnswer::Yes;
    const Agreement agreement = wanted ? agreeOnName(document, path) : Agreement::Refused;
    if (agreement == Agreement::OtherName)
        return saveDocumentAs(document, closing, {});
    const QString stripped = withoutTags(document.txtEdit().Text());
    if (agreement == Agreement::Refused || !writeAndTell(document, {path, SaveForm::Plain, stripped})) {
        notSaved(document, closing);
        document.txtEdit().SetFocus();
        return false;
    }
    // The document loses its tags only now that the file has the text without them.
    m_context.screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    document.txtEdit().setText(stripped);
    document.setDocumentCaption(path);
    document.DocSavePath = path;
    noteWritten(document);
    finish();
    document.txtEdit().SetFocus();
    return true;
}
