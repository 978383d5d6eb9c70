// Packing a page and the local files that it names.
#include "files/modTemplates.h"

#include "common/document.h"
#include "common/encodings.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "common/paths.h"
#include "files/frmMsgCombinedTemplateFilesToSave.h"
#include "files/frmMsgSaveTemplate.h"
#include "files/localPaths.h"
#include "files/templateFiles.h"
#include "files/templateMessages.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/yielder.h"

namespace
{
/// The files to pack, as the user leaves the list of those that were found; nothing if the saving was called off.
std::optional<QStringList> askAboutFiles(ProgramContext &context, const QStringList &found)
{
    auto &form = context.forms.get<frmMsgCombinedTemplateFilesToSave>();
    form.setFiles(found);
    form.ShowModal();
    return form.chosen();
}

/// Whether the template may be written to that path.
bool mayWrite(ProgramContext &context, const QString &path)
{
    if (!context.services.files.exists(path))
        return true;
    const MessageAnswer answer = context.services.messageBoxes.show(templateReplaceQuestion(path));
    if (answer == MessageAnswer::No)
        AskCombinedTemplateName(context);
    return answer == MessageAnswer::Yes;
}

/// The page as bytes: single ones where they hold it, and read back as the same page; else UTF-8.
QByteArray pageBytes(const QString &page)
{
    const QByteArray bytes = encodeOwnFile(page);
    return decodePage(bytes).text == page ? bytes : encode(page, {Encoding::Utf8}).bytes;
}

Packed pack(ProgramContext &context, const QString &path, const QString &page, const QStringList &accompanying)
{
    QList<FileToPack> files{{.name = container::pageName(), .bytes = pageBytes(page)}};
    for (const QString &source : accompanying)
        files.append({.name = FileNameOnly(source), .source = source});
    Yielder &yielder = context.services.yielder;
    yielder.beginPass();
    return writeContainer(
        context.services.files, path, files,
        {.begun =
             [&](const QString &name) {
                 if (name != container::pageName())
                     context.mainWindow->SetStatusText(QStringLiteral("Adding File to Template... ") + name);
                 yielder.yield();
             },
         .failed = [&](const QString &name) { context.services.messageBoxes.show(notAddedMessage(name)); }});
}

void tellResult(ProgramContext &context, const QString &path, const QStringList &accompanying)
{
    auto &form = context.forms.get<frmMsgSaveTemplate>();
    form.setResult(FileNameOnly(path), accompanying);
    form.ShowModal();
}

/// Packs and tells what came of it; false if there is no new template.
bool packAndTell(ProgramContext &context, const QString &path, const QString &page, const QStringList &accompanying)
{
    context.mainWindow->setEnabled(false);
    const Packed packed = pack(context, path, page, accompanying);
    context.mainWindow->SetStatusReady();
    context.mainWindow->setEnabled(true);
    if (packed.error) {
        context.files->FileErrors(packed.error->code, packed.error->description);
        return false;
    }
    QStringList added = packed.names;
    added.removeOne(container::pageName());
    tellResult(context, path, added);
    return true;
}
} // namespace

bool SaveCombinedTemplate(ProgramContext &context, const Document &document, const QString &path)
{
    context.mainWindow->SetStatusText(QStringLiteral("Creating Template File..."));
    FileSystem &files = context.services.files;
    const ReducedPage reduced =
        reduceLocalPaths(document.txtEdit().Text(), [&files](const QString &name) { return files.exists(name); });
    const std::optional<QStringList> accompanying = askAboutFiles(context, reduced.files);
    const bool agreed = accompanying && mayWrite(context, path);
    context.mainWindow->SetStatusReady();
    context.mainWindow->setEnabled(true);
    return agreed && packAndTell(context, path, reduced.text, *accompanying);
}
