#include "internet/inet.h"

#include "forms/programContext.h"
#include "internet/addresses.h"
#include "internet/putOperation.h"
#include "internet/uploads.h"
#include "services/fileSystem.h"
#include "services/services.h"

Inet::Inet(ProgramContext &context, const QString &name, QObject *owner) : QObject(owner), m_context(context)
{
    setObjectName(name);
}

bool Inet::StillExecuting() const
{
    for (const std::weak_ptr<Fetch> &each : m_fetches)
        if (const auto fetch = each.lock(); fetch && fetch->isRunning())
            return true;
    const auto *upload = qobject_cast<Upload *>(m_upload.data());
    return upload && upload->isRunning();
}

std::shared_ptr<Fetch> Inet::OpenURL(const QString &url)
{
    m_fetches.removeIf([](const std::weak_ptr<Fetch> &each) { return each.expired(); });
    auto fetch = std::make_shared<Fetch>(m_context.services.transfers, url);
    m_fetches.append(fetch);
    return fetch;
}

void Inet::Cancel()
{
    for (const std::weak_ptr<Fetch> &each : m_fetches)
        if (const auto fetch = each.lock())
            fetch->Cancel();
}

TransferRequest Inet::uploadRequest(const QString &fileName) const
{
    return {.kind = TransferRequest::Kind::Upload,
            .url = addressOfFile(URL, fileName),
            .protocol = QStringLiteral("ftp"),
            .body = {},
            .userName = UserName,
            .password = Password,
            .access = static_cast<TransferRequest::Access>(AccessType),
            .proxy = Proxy,
            .port = RemotePortCounts ? RemotePort : 0,
            .patience = RequestTimeout};
}

std::optional<QString> Inet::Execute(const QString &operation)
{
    const std::optional<PutOperation> put = parsePutOperation(operation);
    if (!put)
        return QStringLiteral("The operation is not known.");
    const FileContents file = m_context.services.files.readAll(put->path);
    if (file.error)
        return file.error->description;
    TransferRequest request = uploadRequest(put->fileName);
    request.body = file.bytes;
    const UploadStart started = m_context.uploads->start(request, withoutPassword(URL), put->fileName);
    m_upload = started.upload;
    return started.failure.isEmpty() ? std::nullopt : std::optional(started.failure);
}
