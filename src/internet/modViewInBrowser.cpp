#include "internet/modViewInBrowser.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "internet/frmMsgPreviewUnsavedDocument.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "storage/documentCopy.h"
#include "widgets/screenPointer.h"

namespace
{
bool looksLikePage(const QString &target)
{
    const QString text = target.toLower();
    for (const QString &mark : {QStringLiteral("www."), QStringLiteral("http:"), QStringLiteral("//")})
        if (text.contains(mark))
            return true;
    const QString extension = GetFileExtension(text);
    return extension == u"html" || extension == u"htm" || extension == u"asp";
}

bool userWantsIt(ProgramContext &context)
{
    const MessageBox box{.title = QStringLiteral("Unrecognised File Type"),
                         .text = QStringLiteral("The file is not recognised as a webpage. Do you still want to try "
                                                "opening it using its default program?"),
                         .icon = MessageIcon::Information,
                         .buttons = MessageButtons::YesNoCancel};
    return context.services.messageBoxes.show(box) == MessageAnswer::Yes;
}

/// Whether the file on the disk is what the window shows.
bool hasItsFile(const Document &document)
{
    return !document.boolDirty && !document.DocSavePath.isEmpty();
}

void chooseHowToPreview(ProgramContext &context)
{
    SettingsStore &store = context.services.settings;
    if (settings::isOn(store, settings::DontShowPreviewUnsavedFile))
        context.state.PreviewUseTempCopy = settings::previewsByCopy(store);
    else
        context.forms.showModal<frmMsgPreviewUnsavedDocument>();
}

void previewCopy(ProgramContext &context, const Document &document)
{
    const DocumentCopy copy = writeDocumentCopy(context.services, document, QStringLiteral("tmp_eprv.html"));
    if (copy.error)
        context.files->FileErrors(copy.error->code, copy.error->description);
    else
        OpenInBrowser(context, copy.path);
}
} // namespace

void PreviewActiveDocument(ProgramContext &context)
{
    context.state.PreviewCancelled = false;
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    if (!hasItsFile(*document)) {
        chooseHowToPreview(context);
        if (context.state.PreviewCancelled)
            return;
        if (context.state.PreviewUseTempCopy) {
            previewCopy(context, *document);
            return;
        }
        context.files->SaveDocument(false);
        if (!hasItsFile(*document))
            return;
    }
    OpenInBrowser(context, document->DocSavePath);
}

void OpenInBrowser(ProgramContext &context, const QString &target)
{
    if (Document *document = context.mainWindow->activeDocument())
        document->txtEdit().SetFocus();
    context.screenPointer.setMousePointer(PointerShape::Hourglass);
    if (target.isEmpty())
        return;
    if (looksLikePage(target) || userWantsIt(context))
        context.services.launcher.openUrl(target);
    context.screenPointer.setMousePointer(PointerShape::Default);
}

void OpenLink(ProgramContext &context, const QString &url)
{
    context.services.launcher.openUrl(url);
}
