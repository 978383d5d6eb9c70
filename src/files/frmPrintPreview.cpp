#include "files/frmPrintPreview.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "files/modPrinting.h"
#include "files/printLayout.h"
#include "forms/modLaunchHTMLHelp.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"
#include "widgets/printedSheet.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

frmPrintPreview::frmPrintPreview(ProgramContext &context) : DialogForm(context, QStringLiteral("frmPrintPreview"))
{
    setCaption(QStringLiteral("Print Preview"));
}

void frmPrintPreview::Form_Load()
{
    picPage = new PrintedSheet;
    picPage->setObjectName(QStringLiteral("picPage"));
    picPage->setAccessibleName(QStringLiteral("Page"));
    lblPage = ui::label(QStringLiteral("lblPage"), {});
    cmdPrevious = ui::button(QStringLiteral("cmdPrevious"), QStringLiteral("&Previous Page"),
                             [this] { showPage(picPage->page() - 1); });
    cmdNext =
        ui::button(QStringLiteral("cmdNext"), QStringLiteral("&Next Page"), [this] { showPage(picPage->page() + 1); });
    chkLineNumbers =
        ui::check(QStringLiteral("chkLineNumbers"), QStringLiteral("Print &line numbers"), [this] { choice_Click(); });
    chkColours = ui::check(QStringLiteral("chkColours"), QStringLiteral("Print the source's &colours"),
                           [this] { choice_Click(); });
    const PrintChoices choices = printChoices(context());
    chkLineNumbers->setChecked(choices.lineNumbers);
    chkColours->setChecked(choices.colours);
    QPushButton *cmdPrint =
        ui::button(QStringLiteral("cmdPrint"), QStringLiteral("P&rint..."), [this] { cmdPrint_Click(); });
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { cancel(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/commands/mnuPrintPreview.htm"));
    });
    setContent(ui::beside({
        ui::column({
            ui::Node(picPage).stretched(),
            ui::line({cmdPrevious, cmdNext, lblPage, ui::space()}),
            chkLineNumbers,
            chkColours,
        }),
        ui::buttons({cmdPrint, cmdClose, cmdHelp}),
    }));
    setDefaultButton(cmdPrint);
    setCancelButton(cmdClose);
    layOut();
}

void frmPrintPreview::choice_Click()
{
    settings::writeBoolean(services().settings, settings::PrintLineNumbers, chkLineNumbers->isChecked());
    settings::writeBoolean(services().settings, settings::PrintColours, chkColours->isChecked());
    layOut();
}

void frmPrintPreview::layOut()
{
    const Document *document = frmMdi().activeDocument();
    if (!document)
        return;
    const PrintJob job = printJob(context(), *document, printChoices(context()));
    m_pages = static_cast<int>(job.pages.size());
    picPage->setJob(job, services().printing.paper(job.font).size);
    showPage(picPage->page());
}

void frmPrintPreview::showPage(int page)
{
    picPage->setPage(page);
    lblPage->setText(QStringLiteral("Page %1 of %2").arg(picPage->page() + 1).arg(m_pages));
    cmdPrevious->setEnabled(picPage->page() > 0);
    cmdNext->setEnabled(picPage->page() + 1 < m_pages);
}

void frmPrintPreview::cmdPrint_Click()
{
    Unload();
    PrintDocument(context());
}
