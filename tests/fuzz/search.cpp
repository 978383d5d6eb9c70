// Searches for any text in any page, and the change of the root that its links start with.
#include "fuzz/fuzzInput.h"
#include "texttools/findText.h"
#include "texttools/rootConversion.h"

namespace
{
void search(const QString &text, const FindOptions &options, TextSelection selection)
{
    FindState state;
    for (int step = 0; step < 20; ++step) {
        const qsizetype start = searchStart(options, state, selection);
        if (start < 1)
            return;
        const qsizetype found = SearchText(text, options, start, state);
        HAS_TO_HOLD(state.FoundMatch == (found > 0));
        if (found <= 0)
            return;
        HAS_TO_HOLD(found + options.find.size() - 1 <= text.size());
        selection = {found - 1, options.find.size()};
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const int choice = input.number();
    const int length = input.number() % 12;
    const int place = input.largeNumber();
    const QString all = input.text();
    const QString find = all.left(length);
    const QString text = all.mid(length);
    const qsizetype start = place % (text.size() + 1);
    if (!find.isEmpty()) {
        search(text,
               {.find = find,
                .direction = SearchDirection(choice % 3),
                .type = SearchType(choice / 3 % 3),
                .matchCase = (choice & 64) != 0,
                .wholeWords = (choice & 128) != 0},
               {start, 0});
        const ConvertedText converted =
            convertRoot(text, {.oldRoot = find, .newRoot = QStringLiteral("C:\\a\\"), .from = u'/', .to = u'\\'});
        HAS_TO_HOLD(converted.caret >= 0 && converted.caret <= converted.text.size());
    }
    return 0;
}
