// An entry of a code library, and the name of its file.
#include "codeknowledge/codeEntry.h"
#include "common/encodings.h"
#include "fuzz/fuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QString text = decodeOwnFile(FuzzInput(data, size).rest());
    const CodeEntry entry = readCodeEntry(text);
    HAS_TO_HOLD(entry.code.size() + entry.description.size() <= text.size());
    if (isValidEntryTitle(text)) {
        const QString name = entryFileName(text);
        HAS_TO_HOLD(!name.contains(u'/') && !name.contains(u'\\') && !name.contains(QChar(0)));
        HAS_TO_HOLD(isEntryFile(name) && entryTitle(name) == text);
    }
    return 0;
}
