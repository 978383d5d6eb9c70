#include "shell/modNewControl.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "common/paths.h"
#include "document/modDocument.h"
#include "files/localPaths.h"
#include "files/templateFiles.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"

namespace
{
constexpr int BlankRow = 0;
constexpr qint64 PreviewSize = 20'000; ///< bytes

bool isCombined(const QString &path)
{
    return GetFileExtension(path).toLower() == u"ctp";
}

ListRow templateRow(const QString &file)
{
    const QString name = FileNameOnly(file);
    const QString extension = GetFileExtension(name);
    return {.key = name,
            .text = extension.isEmpty() ? name : name.chopped(extension.size() + 1),
            .subItems = {isCombined(name) ? QStringLiteral("Combined Template") : QStringLiteral("Standard Template")}};
}

MessageBox templateErrorBox(const QString &description)
{
    return {.title = QStringLiteral("Template Error"),
            .text = QStringLiteral("The following error occurred while trying to open the template:\r\n") + description,
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

/// The text of a part of a file. A long one is cut behind a line, for a cut inside a character would spoil them all.
QString startText(QByteArray bytes)
{
    if (bytes.size() == PreviewSize)
        bytes.truncate(bytes.lastIndexOf('\n') + 1);
    return decodePage(bytes).text;
}

/// The template is read before there is a window for it.
void openStandard(ProgramContext &context, const QString &path)
{
    const FileContents file = context.services.files.readAll(path);
    if (file.error) {
        context.services.messageBoxes.show(templateErrorBox(file.error->description));
        return;
    }
    Document *document = context.newBlankDocument();
    if (!document)
        return;
    document->txtEdit().setText(decodePage(file.bytes).text);
    document->boolDirty = false;
    document->beginHistory();
    document->DocSelUpdate(QString());
    document->txtEdit().SetFocus();
}
} // namespace

void FillNewDocumentList(SettingsStore &store, FileList &dirTemplates, ListView &lstNew)
{
    dirTemplates.setPath(settings::read(store, settings::Templates));
    lstNew.addRow(
        {.key = {}, .text = QStringLiteral("Blank Document"), .subItems = {QStringLiteral("Default Document")}});
    for (const QString &file : dirTemplates.names())
        lstNew.addRow(templateRow(file));
    lstNew.selectRow(BlankRow);
    lstNew.fitFirstColumn();
}

QString selectedTemplate(SettingsStore &store, const ListView &lstNew)
{
    const std::optional<int> row = lstNew.selectedRow();
    const QString key = row ? lstNew.rowAt(*row).key : QString();
    return key.isEmpty() ? QString() : joinPath(settings::read(store, settings::Templates), key);
}

void openBlankDocument(ProgramContext &context)
{
    if (!context.newBlankDocument()) // the active document is another one then
        return;
    FillBlankDocument(context);
    if (Document *document = context.mainWindow->activeDocument()) {
        document->DocSelUpdate(QString());
        document->txtEdit().SetFocus();
    }
}

bool OpenSelectedTemplate(ProgramContext &context, const ListView &lstNew)
{
    const std::optional<int> row = lstNew.selectedRow();
    if (!row)
        return false;
    const QString path = selectedTemplate(context.services.settings, lstNew);
    if (lstNew.rowAt(*row).text == u"Blank Document") // a template of that name is not told from it
        openBlankDocument(context);
    else if (isCombined(path))
        context.files->OpenCombinedTemplate(path);
    else
        openStandard(context, path);
    return true;
}

QString templatePreview(FileSystem &files, const QString &path)
{
    if (!isCombined(path))
        return startText(files.readPart(path, 0, PreviewSize).bytes);
    const ContainerListing listing = readContainer(files, path);
    const std::optional<container::Entry> page = container::find(listing.entries, container::pageName());
    if (!page || page->position < 1 || page->size < 1)
        return {};
    const FileContents start = files.readPart(path, page->position - 1, qMin(page->size, PreviewSize));
    return startText(start.bytes).remove(FolderMark);
}
