#include "internet/frmSavetoInternet.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "files/documentText.h"
#include "files/modRecentFiles.h"
#include "forms/modLaunchHTMLHelp.h"
#include "internet/addresses.h"
#include "internet/inet.h"
#include "internet/modNetConnectStatus.h"
#include "internet/putOperation.h"
#include "internet/userNames.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{
constexpr int CharactersOfAnAddress = 50;
constexpr int DigitsOfAPort = 5;
constexpr int DigitsOfATime = 4;
const QString Break = QStringLiteral("\r\n");
const QString FirstPort = QStringLiteral("21");
const QString FirstTimeOut = QStringLiteral("60");

MessageBox uploadQuestion()
{
    return {.title = QStringLiteral("File Upload"),
            .text = QStringLiteral("You are about to upload a file to a remote location. It is recommended that you "
                                   "make a backup of the existing file located on the server before you continue.") +
                    Break + Break +
                    QStringLiteral("The upload process may take a few minutes. You will be notified once it is "
                                   "complete.") +
                    Break + Break + QStringLiteral("Do you wish to continue?"),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}

MessageBox noConnectionBox()
{
    return {.title = QStringLiteral("No Internet Connection in Progress"),
            .text = QStringLiteral("An Internet connection could not be found.") + Break + Break +
                    QStringLiteral("Please make sure that the computer is connected and then try again."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

MessageBox completeBox(const QString &address)
{
    return {.title = QStringLiteral("File Upload Complete"),
            .text = QStringLiteral("The file upload to \"") + address + QStringLiteral("\" is complete.") + Break +
                    Break +
                    QStringLiteral("You should check that the upload was successful and save the current document to "
                                   "your hard disk as a backup before you close it.") +
                    Break + Break +
                    QStringLiteral("The webpage may refer to external files. These were not uploaded. To upload these, "
                                   "choose \"Publish Files to the Internet\" from the \"File\" menu."),
            .icon = MessageIcon::None,
            .buttons = MessageButtons::OK};
}
} // namespace

QString portOfProtocol(const QString &protocol)
{
    const QString name = protocol.toLower();
    if (name == u"default" || name == u"http")
        return QStringLiteral("80");
    if (name == u"ftp")
        return QStringLiteral("21");
    return name == u"https" ? QStringLiteral("443") : QString();
}

frmSavetoInternet::frmSavetoInternet(ProgramContext &context) : DialogForm(context, QStringLiteral("frmSavetoInternet"))
{
    setCaption(QStringLiteral("Save to Internet"));
}

void frmSavetoInternet::Form_Load()
{
    buildFields();
    QPushButton *cmdConnect =
        ui::button(QStringLiteral("cmdConnect"), QStringLiteral("&Upload"), [this] { cmdConnect_Click(); });
    cmdAdvanced =
        ui::button(QStringLiteral("cmdAdvanced"), QStringLiteral("&Advanced >>"), [this] { cmdAdvanced_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { cancel(); });
    const auto help = [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_File_SavetoInternet.htm"));
    };
    const ui::Node advanced = advancedPane();
    setContent(ui::column({
        ui::rows({
            ui::row(QStringLiteral("&Server location:"), cboAddress),
            ui::row(QStringLiteral("&File name:"), txtFileName),
            ui::row(QStringLiteral("User &name:"), txtUserName),
            ui::row(QStringLiteral("&Password:"), txtPassword),
        }),
        lblPlainPassword,
        advanced,
        ui::space(),
        ui::line({ui::space(), cmdConnect, cmdAdvanced, cmdCancel,
                  ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), help)}),
    }));
    picAdvanced->hide();
    setDefaultButton(cmdConnect);
    setCancelButton(cmdCancel);
    m_portChosen = false;
    takeOrigin();
}

void frmSavetoInternet::buildFields()
{
    netSave = new Inet(context(), QStringLiteral("netSave"), window());
    const auto warn = [this] { warnOfPlainPassword(); };
    const auto propose = [this] { proposeUserName(); };
    cboAddress = ui::combo(QStringLiteral("cboAddress"), {}, warn, propose);
    cboAddress->setMinimumWidth(cboAddress->fontMetrics().averageCharWidth() * CharactersOfAnAddress);
    ui::onLostFocus(cboAddress, propose);
    txtFileName = ui::text(QStringLiteral("txtFileName"));
    txtUserName = ui::text(QStringLiteral("txtUserName"));
    txtPassword = ui::text(QStringLiteral("txtPassword"), warn);
    txtPassword->setEchoMode(QLineEdit::Password);
    lblPlainPassword =
        ui::label(QStringLiteral("lblPlainPassword"),
                  QStringLiteral("The password will go to the server as plain text, which others on its way can read. "
                                 "If the server has it, write sftp:// or ftps:// in the address instead."));
    lblPlainPassword->setWordWrap(true);
    lblPlainPassword->hide();
}

ui::Node frmSavetoInternet::advancedPane()
{
    cboProtocol = ui::dropList(
        QStringLiteral("cboProtocol"),
        {QStringLiteral("Default"), QStringLiteral("FTP"), QStringLiteral("HTTP"), QStringLiteral("HTTPS")},
        [this] { cboProtocol_Click(); });
    txtPort = ui::number(QStringLiteral("txtPort"), DigitsOfAPort, [this] { m_portChosen = true; });
    txtRequestedTimeOut = ui::number(QStringLiteral("txtRequestedTimeOut"), DigitsOfATime);
    SetNumbersOnly(txtRequestedTimeOut);
    SetNumbersOnly(txtPort);
    optProxyDefault = ui::option(QStringLiteral("optProxyDefault"), QStringLiteral("Use the &default proxy settings"));
    optProxyDirect = ui::option(QStringLiteral("optProxyDirect"), QStringLiteral("Connect d&irectly"));
    optProxyUseSpecified = ui::option(QStringLiteral("optProxyUseSpecified"), QStringLiteral("Use this pro&xy:"));
    txtProxyName = ui::text(QStringLiteral("txtProxyName"));
    txtProxyName->setAccessibleName(QStringLiteral("Name of the proxy"));
    txtProxyPort = ui::number(QStringLiteral("txtProxyPort"), DigitsOfAPort);
    const ui::Node pane = ui::group(
        QStringLiteral("Advanced"),
        ui::column({
            ui::options({optProxyDefault, optProxyDirect, optProxyUseSpecified}),
            ui::rows({ui::row(QStringLiteral("Proxy:"), txtProxyName,
                              {ui::label({}, QStringLiteral("Port:")), txtProxyPort}),
                      ui::row(QStringLiteral("P&rotocol:"), cboProtocol), ui::row(QStringLiteral("P&ort:"), txtPort),
                      ui::row(QStringLiteral("&Time-out (seconds):"), txtRequestedTimeOut)}),
        }),
        QStringLiteral("picAdvanced"));
    picAdvanced = pane.widget();
    optProxyDefault->setChecked(true);
    cboProtocol->setCurrentText(QStringLiteral("FTP"));
    txtPort->setText(FirstPort);
    txtRequestedTimeOut->setText(FirstTimeOut);
    return pane;
}

void frmSavetoInternet::takeOrigin()
{
    LoadAddressHistory(context(), *cboAddress);
    const Document *document = frmMdi().activeDocument();
    if (document && !document->InternetOriginURL.isEmpty()) {
        const Origin origin = parseOrigin(document->InternetOriginURL);
        cboAddress->setEditText(origin.location);
        txtFileName->setText(origin.fileName);
    }
    proposeUserName();
    SelectAllText(cboAddress);
}

void frmSavetoInternet::proposeUserName()
{
    if (txtUserName->text().isEmpty())
        txtUserName->setText(userNameFor(services().settings, cboAddress->currentText()));
}

void frmSavetoInternet::warnOfPlainPassword()
{
    lblPlainPassword->setVisible(!txtPassword->text().isEmpty() && sendsPlainPassword(cboAddress->currentText()));
    growToContent();
}

/// Makes room for what has come on show.
void frmSavetoInternet::growToContent()
{
    QLayout *layout = window()->layout();
    if (!layout || !Visible())
        return;
    layout->activate();
    const QSize size = window()->size();
    const int height =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(size.width()) : layout->totalSizeHint().height();
    window()->resize(size.width(), qMax(size.height(), height));
}

void frmSavetoInternet::cboProtocol_Click()
{
    txtPort->setText(portOfProtocol(cboProtocol->currentText()));
}

void frmSavetoInternet::cmdAdvanced_Click()
{
    cmdAdvanced->setEnabled(false);
    picAdvanced->show();
    growToContent();
    optProxyDefault->setFocus();
}

void frmSavetoInternet::cmdConnect_Click()
{
    if (services().messageBoxes.show(uploadQuestion()) != MessageAnswer::Yes)
        return;
    if (!IsInternetConnected(context(), cboAddress->currentText())) {
        services().messageBoxes.show(noConnectionBox());
        return;
    }
    Document *document = frmMdi().activeDocument();
    if (!document)
        return;
    setProxy();
    setTarget();
    const std::optional<QString> failure = upload(*document);
    netSave->Password.clear();
    if (failure) {
        tellFailure(*failure);
        return;
    }
    const QString shown = withoutPassword(cboAddress->currentText());
    document->InternetOriginURL = originOf(shown, txtFileName->text());
    remember();
    services().messageBoxes.show(completeBox(shown));
    Unload();
}

void frmSavetoInternet::setProxy()
{
    if (optProxyDefault->isChecked()) {
        netSave->AccessType = 0;
    } else if (optProxyDirect->isChecked()) {
        netSave->AccessType = 1;
    } else {
        netSave->AccessType = 2;
        netSave->Proxy = QStringLiteral("ftp=") + txtProxyName->text() + u':' + txtProxyPort->text();
    }
}

void frmSavetoInternet::setTarget()
{
    netSave->RemotePort = txtPort->text().toInt();
    netSave->RemotePortCounts = m_portChosen;
    netSave->URL = cboAddress->currentText();
    netSave->UserName = txtUserName->text();
    netSave->Password = txtPassword->text();
    netSave->RequestTimeout = txtRequestedTimeOut->text().toInt();
}

/// Begins to send the text as a save would write it. Else why that is not possible.
std::optional<QString> frmSavetoInternet::upload(Document &document)
{
    const QString path = joinPath(services().appPath, QStringLiteral("tmp_upload.htm"));
    const EncodedText encoded =
        encodedForSave(document.txtEdit().Text(), document, SaveForm::AsOpened, context().state.habits);
    if (const auto error = services().files.writeScratch(path, encoded.bytes))
        return error->description;
    return netSave->Execute(putOperation({path, txtFileName->text()}));
}

void frmSavetoInternet::remember()
{
    RecordAddress(context(), *cboAddress, withoutPassword(cboAddress->currentText()));
    rememberUserName(services().settings, cboAddress->currentText(), txtUserName->text());
}

void frmSavetoInternet::tellFailure(const QString &description)
{
    services().messageBoxes.show(
        {.title = QStringLiteral("Save to Internet Error"),
         .text = QStringLiteral("The following error occurred while trying to upload your webpage: ") + description,
         .icon = MessageIcon::None,
         .buttons = MessageButtons::OK});
}
