#include "internet/unknownHosts.h"

#include "forms/programContext.h"
#include "services/internetTransfer.h"
#include "services/messageBoxes.h"
#include "services/services.h"

namespace
{
const QString Break = QStringLiteral("\r\n");

MessageBox question(const UnknownHost &host)
{
    return {.title = QStringLiteral("Unknown Server"),
            .text = QStringLiteral("The server \"") + host.name +
                    QStringLiteral("\" has not been used before. It shows a key with this fingerprint:") + Break +
                    Break + host.fingerprint + Break + Break +
                    QStringLiteral("Compare it with the one that the owner of the server gives. Do you trust this "
                                   "server from now on?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}
} // namespace

TrustAnswer askToTrust(ProgramContext &context, const UnknownHost &host)
{
    if (context.services.messageBoxes.show(question(host)) != MessageAnswer::Yes)
        return {};
    const std::optional<QString> failure = context.services.transfers.trust(host);
    return {!failure, failure.value_or(QString())};
}
