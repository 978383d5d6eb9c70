#include "internet/frmOpenFromInternet.h"

#include "common/document.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "files/documentText.h"
#include "files/modRecentFiles.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "internet/addresses.h"
#include "internet/downloadedText.h"
#include "internet/inet.h"
#include "internet/modNetConnectStatus.h"
#include "internet/progressText.h"
#include "internet/unknownHosts.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/yielder.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace
{
constexpr int FirstErrorStatus = 400;
constexpr int CharactersOfAnAddress = 60;
const QString Break = QStringLiteral("\r\n");
const QString FirstAddress = QStringLiteral("http://");

MessageBox noConnectionBox()
{
    return {.title = QStringLiteral("No Internet Connection Found"),
            .text = QStringLiteral("An Internet connection could not be found.  Please verify that the computer is "
                                   "connected and then try again."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::RetryCancel};
}

MessageBox unavailableBox()
{
    return {.title = QStringLiteral("Resource Unavailable"),
            .text = QStringLiteral("The resource located at the URL specified could not be found or is unable to be "
                                   "read.") +
                    Break + Break +
                    QStringLiteral("Please check that the URL is correct and points to a document that is able to be "
                                   "edited in Tagwrighter. Alternatively the website or document may be temporarily "
                                   "unavailable, and you might need to try again later."),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::OK};
}

/// What the server has to say is a page only if it is one: an error's page is none.
bool holdsPage(const TransferEnd &end)
{
    return !end.body.isEmpty() && end.ResponseCode < FirstErrorStatus;
}
} // namespace

frmOpenFromInternet::frmOpenFromInternet(ProgramContext &context)
    : DialogForm(context, QStringLiteral("frmOpenFromInternet"))
{
    setCaption(QStringLiteral("Open from Internet"));
}

void frmOpenFromInternet::Form_Load()
{
    m_opened = false;
    netOpen = new Inet(context(), QStringLiteral("netOpen"), window());
    cboAddress = ui::combo(QStringLiteral("cboAddress"));
    cboAddress->setMinimumWidth(cboAddress->fontMetrics().averageCharWidth() * CharactersOfAnAddress);
    QPushButton *cmdOpen = ui::button(QStringLiteral("cmdOpen"), QStringLiteral("&Open"), [this] { cmdOpen_Click(); });
    QPushButton *cmdCancel =
        ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cmdCancel_Click(); });
    const auto help = [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_File_OpenFromInternet.htm"));
    };
    setContent(ui::beside({
        ui::column({ui::under(QStringLiteral("&Address (URL) of the page:"), cboAddress), ui::space()}),
        ui::buttons({cmdOpen, cmdCancel, ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), help)}),
    }));
    setDefaultButton(cmdOpen);
    setCancelButton(cmdCancel);
    LoadAddressHistory(context(), *cboAddress);
    cboAddress->setEditText(FirstAddress);
    cboAddress->setFocus();
    // A field that is entered has its text selected; here, that is the beginning of an address to be written on.
    ui::onGotFocus(cboAddress, [edit = cboAddress->lineEdit()] {
        if (edit->text() == FirstAddress)
            QMetaObject::invokeMethod(
                edit, [edit] { edit->end(false); }, Qt::QueuedConnection);
    });
}

void frmOpenFromInternet::cmdCancel_Click()
{
    cancel();
}

void frmOpenFromInternet::Form_Unload()
{
    // Only who leaves the form gives up what it has begun; a page that came lets the others come, too.
    if (netOpen && !m_opened)
        netOpen->Cancel();
    DialogForm::Form_Unload();
}

bool frmOpenFromInternet::isConnectedOrLeft(const QString &address)
{
    while (!IsInternetConnected(context(), address))
        if (services().messageBoxes.show(noConnectionBox()) != MessageAnswer::Retry)
            return false;
    return true;
}

void frmOpenFromInternet::cmdOpen_Click()
{
    const QString address = cboAddress->currentText();
    if (!isConnectedOrLeft(address) || !netOpen)
        return;
    context().screenPointer.setMousePointer(PointerShape::Hourglass);
    const QString opening = QStringLiteral("Opening \"") + withoutPassword(address) + QStringLiteral("\"...");
    frmMdi().SetStatusText(opening);
    std::shared_ptr<Fetch> fetch = fetched(address, opening);
    while (mayTryAgain(*fetch))
        fetch = fetched(address, opening);
    if (context().state.ProgramEnded)
        return;
    if (fetch->isCancelled())
        resetBarAndPointer();
    else
        showResult(address, *fetch);
}

/// Gets the page once, however that ends.
std::shared_ptr<Fetch> frmOpenFromInternet::fetched(const QString &address, const QString &opening)
{
    std::shared_ptr<Fetch> fetch = netOpen->OpenURL(address);
    connect(fetch.get(), &Fetch::received, this,
            [this, opening](qint64 done, qint64 total) { showProgress(opening, done, total); });
    await(*fetch);
    return fetch;
}

/// Whether a server that is not known becomes one that is.
bool frmOpenFromInternet::mayTryAgain(Fetch &fetch)
{
    if (context().state.ProgramEnded || fetch.isCancelled() || !fetch.end().unknownHost)
        return false;
    const TrustAnswer answer = askToTrust(context(), *fetch.end().unknownHost);
    if (!answer.failure.isEmpty())
        fetch.failWith(answer.failure);
    return answer.trusted && netOpen;
}

void frmOpenFromInternet::await(const Fetch &fetch)
{
    services().yielder.beginPass();
    while (fetch.isRunning() && !context().state.ProgramEnded)
        services().yielder.waitForEvents();
}

void frmOpenFromInternet::showProgress(const QString &opening, qint64 done, qint64 total)
{
    const QString amount = progressText(done, total);
    if (!amount.isEmpty() && !context().state.ProgramEnded)
        frmMdi().SetStatusText(opening + u' ' + amount);
}

void frmOpenFromInternet::showResult(const QString &address, const Fetch &fetch)
{
    if (!fetch.refusal().isEmpty() || !fetch.end().failure.isEmpty()) {
        tellFailure(address, fetch);
    } else if (!holdsPage(fetch.end())) {
        services().messageBoxes.show(unavailableBox());
        resetBarAndPointer();
    } else {
        openDocument(address, fetch);
    }
}

void frmOpenFromInternet::tellFailure(const QString &address, const Fetch &fetch)
{
    // What broke off on the way is told in words of ours, which begin a line of their own.
    const QString description = fetch.refusal().isEmpty() ? Break + Break + fetch.end().failure : fetch.refusal();
    services().messageBoxes.show({.title = QStringLiteral("Open From Internet Error"),
                                  .text = QStringLiteral("The following error occurred while trying to open ") +
                                          withoutPassword(address) + description,
                                  .icon = MessageIcon::None,
                                  .buttons = MessageButtons::OK});
    resetBarAndPointer();
}

void frmOpenFromInternet::openDocument(const QString &address, const Fetch &fetch)
{
    Document *document = context().newBlankDocument();
    if (!document) {
        resetBarAndPointer();
        return;
    }
    const DecodedText page = decodeDownload(fetch.end().body, fetch.end().charset);
    document->txtEdit().setText(page.text);
    noteOpened(*document, page, false);
    frmMdi().showFileFormat(fileFormatText(*document));
    document->InternetOriginURL = originOf(withoutPassword(address));
    document->boolDirty = false;
    document->beginHistory();
    document->DocSelUpdate(QString());
    document->NewDoc = true;
    recordAddress(address);
    m_opened = true;
    Unload();
    document->txtEdit().SetFocus();
    resetBarAndPointer();
}

void frmOpenFromInternet::recordAddress(const QString &address)
{
    if (isLoaded() && cboAddress)
        RecordAddress(context(), *cboAddress, withoutPassword(address));
    const Form *mainForm = context().forms.mainForm();
    auto *addressBar = mainForm ? qobject_cast<QComboBox *>(mainForm->control(QStringLiteral("cboAddress"))) : nullptr;
    if (!addressBar || !addressBar->currentText().isEmpty())
        return;
    addressBar->clear();
    LoadAddressHistory(context(), *addressBar);
}

void frmOpenFromInternet::resetBarAndPointer()
{
    context().screenPointer.setMousePointer(PointerShape::Default);
    frmMdi().SetStatusReady();
}
