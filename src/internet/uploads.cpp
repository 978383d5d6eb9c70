#include "internet/uploads.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/quoted.h"
#include "forms/programContext.h"
#include "internet/progressText.h"
#include "internet/unknownHosts.h"
#include "services/messageBoxes.h"
#include "services/services.h"

namespace
{
const QString Break = QStringLiteral("\r\n");
constexpr int MillisecondsShown = 200; ///< after which a text is shown again

MessageBox cutQuestion(const Upload &upload)
{
    return {.title = QStringLiteral("Upload in Progress"),
            .text = QStringLiteral("The upload of ") + quoted(upload.fileName()) + QStringLiteral(" to ") +
                    quoted(upload.location()) + QStringLiteral(" has not finished yet.") + Break + Break +
                    QStringLiteral("Do you want to exit all the same and break it off?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}
} // namespace

QString uploadStageText(TransferState state)
{
    switch (state) {
    case TransferState::ResolvingHost:
        return QStringLiteral("Save to Internet: Resolving host...");
    case TransferState::HostResolved:
        return QStringLiteral("Save to Internet: Host resolved.");
    case TransferState::Connecting:
        return QStringLiteral("Save to Internet: Connecting...");
    case TransferState::Requesting:
        return QStringLiteral("Save to Internet: Requesting...");
    case TransferState::RequestSent:
        return QStringLiteral("Save to Internet: Request sent.");
    case TransferState::ReceivingResponse:
        return QStringLiteral("Save to Internet: Receiving data...");
    case TransferState::ResponseReceived:
        return QStringLiteral("Save to Internet: Response received.");
    case TransferState::Disconnecting:
        return QStringLiteral("Save to Internet: Disconnecting...");
    case TransferState::Connected:
    case TransferState::Disconnected:
    case TransferState::Error:
    case TransferState::ResponseCompleted:
        break;
    }
    return {};
}

Upload::Upload(ProgramContext &context, const TransferRequest &request, const QString &location,
               const QString &fileName)
    : m_context(context), m_request(request), m_location(location), m_fileName(fileName)
{
    // Much else that goes on says that the program is ready, such as the focus that comes back to a document.
    m_again.setInterval(MillisecondsShown);
    connect(&m_again, &QTimer::timeout, this, &Upload::tellShown);
}

QString Upload::start()
{
    StartedTransfer started = m_context.services.transfers.start(m_request, *this);
    m_transfer = std::move(started.transfer);
    return started.failure;
}

void Upload::tell(const QString &text)
{
    m_shown = text;
    m_again.start();
    tellShown();
}

void Upload::tellShown() const
{
    if (!m_context.state.ProgramEnded && !m_shown.isEmpty())
        m_context.mainWindow->SetStatusText(m_shown);
}

void Upload::tellReady()
{
    m_shown.clear();
    m_again.stop();
    if (!m_context.state.ProgramEnded)
        m_context.mainWindow->SetStatusReady();
}

void Upload::StateChanged(TransferState state)
{
    if (state == TransferState::Disconnected || state == TransferState::ResponseCompleted) {
        tellReady();
        return;
    }
    const QString text = uploadStageText(state);
    if (text.isEmpty())
        return;
    m_stage = text;
    tell(text);
}

void Upload::progressed(qint64 done, qint64 total)
{
    const QString amount = progressText(done, total);
    if (!amount.isEmpty() && !m_stage.isEmpty())
        tell(m_stage + u' ' + amount);
}

void Upload::finished(const TransferEnd &end)
{
    m_end = end;
    m_transfer.reset();
    if (m_end.unknownHost) {
        startAgain(*m_end.unknownHost);
        return;
    }
    if (m_end.failure.isEmpty())
        conclude();
    else
        tellFailure(m_end);
}

/// The second try of an upload, to a server that is known by now.
void Upload::startAgain(const UnknownHost &host)
{
    TrustAnswer answer = askToTrust(m_context, host);
    if (answer.trusted)
        answer.failure = start();
    if (isRunning())
        return;
    if (!answer.failure.isEmpty())
        tellError(answer.failure);
    else
        tellFailure(m_end);
}

void Upload::tellError(const QString &description)
{
    m_context.services.messageBoxes.show({.title = QStringLiteral("Save to Internet Error"),
                                          .text = QStringLiteral("The following error occurred: ") + description,
                                          .icon = MessageIcon::None,
                                          .buttons = MessageButtons::OK});
    tellReady();
    conclude();
}

void Upload::tellFailure(const TransferEnd &end)
{
    m_request.password.fill(u'\0');
    m_context.services.messageBoxes.show({.title = QStringLiteral("Error"),
                                          .text = QStringLiteral("Error: ") + QString::number(end.ResponseCode) +
                                                  Break + Break + end.ResponseInfo + Break + Break +
                                                  QStringLiteral("The connection will now end."),
                                          .icon = MessageIcon::None,
                                          .buttons = MessageButtons::OK});
    tell(QStringLiteral("Error. The connection was terminated. (") + end.failure + u')');
    connect(&m_again, &QTimer::timeout, this, &Upload::conclude); // shown once more, when the box has given way
}

void Upload::breakOff()
{
    m_transfer.reset();
    conclude();
}

void Upload::conclude()
{
    m_request.password.fill(u'\0');
    m_again.stop();
    deleteLater();
}

UploadStart Uploads::start(const TransferRequest &request, const QString &location, const QString &fileName)
{
    auto upload = std::make_unique<Upload>(m_context, request, location, fileName);
    const QString failure = upload->start();
    if (!failure.isEmpty())
        return {nullptr, failure};
    upload->setParent(this);
    return {upload.release(), {}};
}

void Uploads::breakOff()
{
    for (Upload *each : findChildren<Upload *>(QString(), Qt::FindDirectChildrenOnly))
        each->breakOff();
}

bool Uploads::mayBeCut() const
{
    for (const Upload *each : findChildren<Upload *>(QString(), Qt::FindDirectChildrenOnly))
        if (each->isRunning())
            return m_context.services.messageBoxes.show(cutQuestion(*each)) == MessageAnswer::Yes;
    return true;
}
