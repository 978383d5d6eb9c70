// What standard and combined templates share, and the making and unpacking of the latter.
#include "files/modTemplates.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/templateFiles.h"
#include "files/templateMessages.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"

void OpenStandardTemplate(ProgramContext &context, const QString &path, bool asNew)
{
    context.files->OpenTemplateFile(path, asNew);
}

void AskCombinedTemplateName(ProgramContext &context)
{
    const std::optional<FileDialogResult> chosen = context.services.commonDialogs.showSave(
        {.DialogTitle = QStringLiteral("Save new Combined HTML Template As"),
         .Filter = QStringLiteral("Combined HTML Template Files (*.cht)|*.cht"),
         .FilterIndex = 1,
         .InitDir = settings::read(context.services.settings, settings::WorkingDir),
         .FileName = {}});
    if (chosen && !chosen->fileName.isEmpty())
        CreateCombinedTemplate(context, chosen->fileName);
}

void CreateCombinedTemplate(ProgramContext &context, const QString &path)
{
    if (context.services.files.exists(path)) {
        const MessageAnswer answer = context.services.messageBoxes.show(templateReplaceQuestion(path));
        if (answer == MessageAnswer::No)
            AskCombinedTemplateName(context);
        if (answer != MessageAnswer::Yes)
            return;
    }
    if (const std::optional<FileError> error = writeEmptyContainer(context.services.files, path))
        context.files->FileErrors(error->code, error->description);
}

bool ExtractFromCombinedTemplate(ProgramContext &context, const QString &path, const QString &name,
                                 const QString &target)
{
    FileSystem &files = context.services.files;
    if (files.exists(target) && context.services.messageBoxes.show(fileReplaceQuestion(target)) != MessageAnswer::Yes) {
        context.mainWindow->setEnabled(true);
        return true;
    }
    const ContainerListing listing = readContainer(files, path);
    std::optional<FileError> error = listing.error;
    const std::optional<container::Entry> entry = container::find(listing.entries, name);
    if (!error && entry)
        error = extractEntry(files, path, *entry, target);
    if (error)
        context.files->FileErrors(error->code, error->description);
    return !error;
}
