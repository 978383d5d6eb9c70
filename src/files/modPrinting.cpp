#include "files/modPrinting.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/frmPrinting.h"
#include "files/printLayout.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/editorSettings.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/yielder.h"

namespace
{
constexpr int PagesWorthWatching = 20; ///< fewer are printed before a window would have come up

QString printTitle(const Document &document)
{
    return document.DocSavePath.isEmpty() ? document.documentCaption() : FileNameOnly(document.DocSavePath);
}

/// Prints with a window that tells how far it is where there is much to print.
std::optional<PrintError> printWatched(ProgramContext &context, const PrintJob &job)
{
    const int pages = static_cast<int>(job.pages.size()) * job.copies;
    auto &watch = context.forms.get<frmPrinting>();
    if (pages >= PagesWorthWatching)
        watch.begin(job.title, pages);
    Yielder &yielder = context.services.yielder;
    yielder.beginPass();
    const auto goOn = [&](int page) {
        watch.showPage(page);
        yielder.yield();
        return !watch.wasCancelled();
    };
    std::optional<PrintError> error = context.services.printing.print(job, goOn);
    watch.end();
    return error;
}
} // namespace

MessageBox printErrorBox(const PrintError &error)
{
    MessageBox box{.title = {}, .text = {}, .icon = MessageIcon::Exclamation, .buttons = MessageButtons::OK};
    if (error.number == PrintError::Failed) {
        box.title = QStringLiteral("Printer Error");
        box.text = QStringLiteral("An error occurred while trying to print. The operation could not be completed.");
    } else if (error.number == PrintError::NoDriver) {
        box.title = QStringLiteral("Printer Driver Unavailable");
        box.text = QStringLiteral("There is a problem with the printer driver. Information in the WIN.INI file may be "
                                  "missing\r\nPlease re-install your printer driver and try again.");
    } else {
        box.title = QStringLiteral("Unexpected Printer Error!");
        box.text = QStringLiteral("The following error occurred while trying to print:") + QStringLiteral("\r\n") +
                   error.description;
    }
    return box;
}

PrintChoices printChoices(const ProgramContext &context)
{
    SettingsStore &store = context.services.settings;
    return {.lineNumbers = settings::isOn(store, settings::PrintLineNumbers),
            .colours = settings::isOn(store, settings::PrintColours),
            .tabWidth = tabWidth(store)};
}

PrintJob printJob(ProgramContext &context, const Document &document, const PrintChoices &choices)
{
    PrintJob job{.title = printTitle(document), .font = document.editorFont(), .lineNumbers = choices.lineNumbers};
    const Paper paper = context.services.printing.paper(job.font);
    job.pages = laidOutPages(document.txtEdit(), paper, choices);
    return job;
}

void PrintDocument(ProgramContext &context)
{
    const Document *document = context.mainWindow->activeDocument();
    const std::optional<int> cdlPrint = document ? context.services.commonDialogs.showPrint() : std::nullopt;
    if (!cdlPrint)
        return;
    context.mainWindow->setEnabled(false); // what is being printed is not to change or to go
    context.mainWindow->SetStatusText(QStringLiteral("Printing in progress... Please wait."));
    PrintJob job = printJob(context, *document, printChoices(context));
    job.copies = *cdlPrint;
    const std::optional<PrintError> error = printWatched(context, job);
    context.mainWindow->setEnabled(true);
    if (error)
        context.services.messageBoxes.show(printErrorBox(*error));
    context.mainWindow->SetStatusReady();
}
