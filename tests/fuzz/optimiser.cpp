// The indenting of a whole page, and of any part of it.
#include "document/indentation.h"
#include "document/syntaxOptimiser.h"
#include "fuzz/fuzzInput.h"

namespace
{
bool liesIn(const TextSelection &selection, const QString &text)
{
    return selection.start >= 0 && selection.length >= 0 && selection.start + selection.length <= text.size();
}

/// Nothing but blanks comes or goes.
QString withoutBlanks(QString text)
{
    return text.remove(u' ');
}

void indent(QString text, const TextSelection &selection, bool inwards)
{
    const IndentResult result = IndentText(text, selection, inwards);
    if (const auto &change = result.replacement) {
        HAS_TO_HOLD(liesIn({change->start, change->length}, text));
        const QString before = withoutBlanks(text);
        text.replace(change->start, change->length, change->text);
        HAS_TO_HOLD(withoutBlanks(text) == before);
    }
}

void optimise(const QString &text)
{
    UndoHistory history;
    history.UndoRedoChange({text, {}});
    SyntaxOptimiser optimiser(text, history);
    while (optimiser.advance()) {
    }
    HAS_TO_HOLD(optimiser.hasChanged() || optimiser.text() == text);
    HAS_TO_HOLD(withoutBlanks(optimiser.text()) == withoutBlanks(text));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const int start = input.largeNumber();
    const int length = input.largeNumber();
    const bool inwards = input.number() % 2 == 0;
    const QString text = input.text();
    const qsizetype from = start % (text.size() + 1);
    indent(text, {from, length % (text.size() - from + 1)}, inwards);
    optimise(text);
    return 0;
}
