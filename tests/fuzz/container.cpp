// A combined template from somebody else, which is unpacked into the user's folder.
#include "files/templateFiles.h"
#include "fuzz/fuzzInput.h"
#include "fuzz/memoryFiles.h"

namespace
{
/// What was unpacked is packed again and comes back.
void comesBack(const QList<FileToPack> &unpacked)
{
    MemoryFiles files;
    const PackingReports reports{.begun = [](const QString &) {}, .failed = [](const QString &) {}};
    const QString path = QStringLiteral("/again.ctp");
    const Packed packed = writeContainer(files, path, unpacked, reports);
    HAS_TO_HOLD(!packed.error);
    const QList<container::Entry> entries = readContainer(files, path).entries;
    HAS_TO_HOLD(entries.size() <= packed.names.size());
    for (const container::Entry &entry : entries)
        HAS_TO_HOLD(!extractEntry(files, path, entry, QStringLiteral("/out")));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes = FuzzInput(data, size).rest();
    const QString path = QStringLiteral("/t.ctp");
    MemoryFiles files;
    files.files.insert(path, bytes);
    (void)IsCombinedTemplate(files, path);
    QList<FileToPack> unpacked;
    qint64 unpackedBytes = 0;
    for (const container::Entry &entry : readContainer(files, path).entries) {
        HAS_TO_HOLD(entry.size != 0 && entry.position != 0);
        if (!container::isPlainName(entry.name) || unpackedBytes > (1 << 20))
            continue;
        HAS_TO_HOLD(!entry.name.contains(u'/') && !entry.name.contains(u'\\') && entry.name != u"..");
        const QString out = QStringLiteral("/out/") + entry.name;
        if (extractEntry(files, path, entry, out))
            continue;
        HAS_TO_HOLD(files.files.value(out).size() == entry.size && entry.size <= bytes.size());
        unpackedBytes += entry.size;
        unpacked.append({.name = entry.name, .source = {}, .bytes = files.files.value(out)});
    }
    comesBack(unpacked);
    return 0;
}
