#include "internet/modNetConnectStatus.h"

#include "forms/programContext.h"
#include "services/internetTransfer.h"
#include "services/services.h"

bool IsInternetConnected(ProgramContext &context, const QString &address)
{
    return context.services.transfers.isConnected(address);
}
