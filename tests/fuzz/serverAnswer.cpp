// A server's answer: its header lines up to an empty one, and the page; and the addresses that it leads to.
#include "fuzz/fuzzInput.h"
#include "internet/addresses.h"
#include "internet/downloadedText.h"
#include "transfers/answerHeader.h"
#include "transfers/transferAddress.h"

namespace
{
void visit(const QString &address)
{
    const Origin origin = parseOrigin(originOf(address));
    (void)addressOfFile(origin.location, origin.fileName);
    (void)withoutPassword(address);
    (void)sendsPlainPassword(address);
    auto parsed = TransferAddress::parse(address, QStringLiteral("http"));
    if (!parsed)
        return;
    (void)parsed->isSupported();
    (void)parsed->hostWithPort();
    const auto shown = TransferAddress::parse(withoutPassword(address), QStringLiteral("http"));
    HAS_TO_HOLD(!shown || shown->password().isEmpty());
    parsed->setName(parsed->name() + QStringLiteral(".new"));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes = FuzzInput(data, size).rest();
    QString charset;
    qsizetype start = 0;
    while (start < bytes.size()) {
        const qsizetype found = bytes.indexOf('\n', start);
        const qsizetype end = found < 0 ? bytes.size() : found;
        const QByteArray line = bytes.sliced(start, end - start).trimmed();
        start = end + 1;
        if (line.isEmpty())
            break;
        if (const auto status = answerStatus(line))
            HAS_TO_HOLD(status->code >= 0 && status->code <= 999);
        charset = charsetOfHeader(line).value_or(charset);
        if (line.startsWith("Location:"))
            visit(QString::fromUtf8(line.sliced(9)).trimmed());
    }
    const QByteArray body = bytes.mid(start);
    const DecodedText text = decodeDownload(body, charset);
    const EncodedText saved = encode(text.text, text.format);
    if (!text.mixedLineEnds && !saved.switchedToUtf8)
        HAS_TO_HOLD(saved.bytes == body);
    return 0;
}
