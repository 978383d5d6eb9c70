#include "document/modDocument.h"

#include "common/encodings.h"
#include "common/fileCommands.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/text.h"
#include "document/frmWrite.h"
#include "forms/formRuntime.h"
#include "services/editorSettings.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/systemFacts.h"
#include "widgets/screenPointer.h"

#include <new>

namespace
{
constexpr int OutOfMemory = 7;

const QString Break = QStringLiteral("\r\n");

QString metaLine(const QString &name, const QString &content)
{
    return QStringLiteral("<meta name=\"%1\" content=\"%2\">").arg(name, content) + Break;
}

QString emptyMetaLines()
{
    return metaLine(QStringLiteral("description"), {}) + metaLine(QStringLiteral("keywords"), {}) +
           metaLine(QStringLiteral("author"), {}) +
           metaLine(QStringLiteral("generator"), QStringLiteral("Tagwrighter"));
}

void fillFromFile(ProgramContext &context, Document &document)
{
    const QString path = settings::read(context.services.settings, settings::BlankDFile);
    const FileContents file = context.services.files.readAll(path);
    if (file.error) {
        context.services.messageBoxes.show(
            {.title = QStringLiteral("Template Error"),
             .text = QStringLiteral("An error occurred while trying to open the startup file."),
             .icon = MessageIcon::Exclamation,
             .buttons = MessageButtons::OK});
        return;
    }
    document.txtEdit().setText(decode(file.bytes).text);
    document.boolDirty = false;
}

void fillWithBuiltInPage(ProgramContext &context, Document &document)
{
    TextSurface &edit = document.txtEdit();
    edit.setSelText(builtInPage(settings::isOn(context.services.settings, settings::AddMetaInfo)));
    document.boolDirty = false;
    // The position counts from 1 and the caret from 0: behind the tag's six characters and its break.
    edit.setSelStart(Find(edit.Text().toLower(), u"<body>").value_or(0) + 7);
}

/// The page of today. Its title is selected: that is what is written first.
void fillWithPageOfToday(ProgramContext &context, Document &document)
{
    TextSurface &edit = document.txtEdit();
    const QString charset = document.fileFormat.encoding == Encoding::Windows1252 ? QStringLiteral("windows-1252")
                                                                                  : QStringLiteral("utf-8");
    edit.setSelText(pageOfToday(context.services.systemFacts.language(), charset,
                                settings::isOn(context.services.settings, settings::AddMetaInfo)));
    document.boolDirty = false;
    const QString text = edit.Text();
    const qsizetype title = text.indexOf(u"<title>") + 7;
    edit.setSelStart(title);
    edit.setSelLength(text.indexOf(u"</title>") - title);
}
} // namespace

FileFormat formatOfNewDocument(const ProgramContext &context)
{
    const LineEnd unset = context.state.habits.HabitNewPage ? context.services.systemFacts.lineEnd() : LineEnd::CrLf;
    return newDocumentFormat(context.services.settings, unset);
}

Document *NewBlankDocument(ProgramContext &context)
{
    Document *made = nullptr;
    context.screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    try {
        auto form = std::make_unique<frmWrite>(context);
        frmWrite &document = *form;
        context.forms.adopt(std::move(form));
        document.Show();
        document.NewDoc = true;
        document.fileFormat = formatOfNewDocument(context);
        document.plainEncoding = document.fileFormat.encoding;
        context.mainWindow->showFileFormat(fileFormatText(document)); // it came to the front without
        made = &document;
    } catch (const std::bad_alloc &) {
        if (context.files)
            context.files->MemoryErrors(OutOfMemory);
    }
    context.screenPointer.setMousePointer(PointerShape::Default);
    return made;
}

QString builtInPage(bool addMetaInfo)
{
    QString page = QStringLiteral("<html>\r\n<head>\r\n<title>Enter_Title_Here</title>\r\n");
    if (addMetaInfo)
        page += emptyMetaLines();
    return page + QStringLiteral("</head>\r\n<body>\r\n\r\n</body>\r\n</html>");
}

QString pageOfToday(const QString &language, const QString &charset, bool addMetaInfo)
{
    QString page = QStringLiteral("<!DOCTYPE html>\r\n<html lang=\"%1\">\r\n<head>\r\n<meta charset=\"%2\">\r\n")
                       .arg(language.toHtmlEscaped(), charset);
    page += metaLine(QStringLiteral("viewport"), QStringLiteral("width=device-width, initial-scale=1"));
    page += QStringLiteral("<title>Enter_Title_Here</title>\r\n");
    if (addMetaInfo)
        page += emptyMetaLines();
    return page + QStringLiteral("</head>\r\n<body>\r\n\r\n</body>\r\n</html>");
}

void FillBlankDocument(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    context.mainWindow->setEnabled(false);
    const QString code = settings::read(context.services.settings, settings::BlankDocCode);
    if (code == u"0")
        document->boolDirty = false;
    else if (code == u"2")
        fillFromFile(context, *document);
    else if (context.state.habits.HabitNewPage)
        fillWithPageOfToday(context, *document);
    else
        fillWithBuiltInPage(context, *document);
    document->UndoRedoChange();
    document->beginHistory();
    context.mainWindow->setEnabled(true);
}

void ApplyWordWrapSetting(ProgramContext &context, bool enabled)
{
    context.screenPointer.setMousePointer(PointerShape::Hourglass);
    context.mainWindow->WordWrap = enabled;
    context.mainWindow->setWordWrapChecked(enabled);
    settings::writeBoolean(context.services.settings, settings::WordWrap, enabled);
    for (Document *document : context.mainWindow->openDocuments())
        document->CheckWordWrapSettings();
    context.screenPointer.setMousePointer(PointerShape::Default);
}
