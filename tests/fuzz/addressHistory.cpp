// The file of the addresses that were typed.
#include "files/addressHistory.h"
#include "fuzz/fuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray file = FuzzInput(data, size).rest();
    const QStringList addresses = addressesOf(file);
    const QString added = QStringLiteral("http://example.org/\u0141");
    HAS_TO_HOLD(addressesOf(withAddress(file, added)) == addresses + QStringList{added});
    return 0;
}
