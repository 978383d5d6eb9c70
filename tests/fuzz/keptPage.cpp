// A page of unsaved text that an earlier session, or anybody, has left in the folder for it.
#include "common/keptPage.h"
#include "common/lineDifference.h"
#include "fuzz/fuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const QByteArray bytes = input.rest();
    if (const std::optional<KeptPage> page = keptPageOf(bytes)) {
        const std::optional<KeptPage> again = keptPageOf(keptPageBytes(*page));
        HAS_TO_HOLD(again && again->text == page->text && again->path == page->path && again->format == page->format);
    }
    // A text that no one has sealed is tried with a seal, too, or hardly any input would come behind it.
    KeptPage page;
    page.path = QStringLiteral("/a");
    page.selStart = input.largeNumber();
    page.selLength = input.number();
    page.text = input.text();
    const std::optional<KeptPage> kept = keptPageOf(keptPageBytes(page));
    HAS_TO_HOLD(kept && kept->text == page.text && kept->selStart == page.selStart);
    (void)lineDifference(page.text, page.text.mid(page.text.size() / 2));
    return 0;
}
