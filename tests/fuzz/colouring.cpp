// The colours and the structure tree of a page.
#include "document/syntaxScanner.h"
#include "fuzz/fuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    ColouringOptions options;
    const int choice = input.number();
    options.ColourCodeSyntax = (choice & 1) == 0;
    options.ColourCodeHyperlink = (choice & 2) == 0;
    const int cancelAfter = (choice & 4) == 0 ? -1 : input.number();
    const QString text = input.text();
    SyntaxScanner scanner(text, options);
    scanner.setStructureShown((choice & 8) == 0);
    for (int steps = 0; scanner.advance(); ++steps)
        if (steps == cancelAfter)
            scanner.cancel();
    qsizetype end = 0;
    for (const PaintRange &range : scanner.paints().visible()) {
        HAS_TO_HOLD(range.start >= end && range.length > 0);
        end = range.start + range.length;
        HAS_TO_HOLD(end <= text.size());
    }
    (void)scanner.paints().formats(options);
    qsizetype number = 0;
    for (const StructureNode &node : scanner.structure().nodes()) {
        HAS_TO_HOLD(node.parent >= -1 && node.parent < number++);
        HAS_TO_HOLD(node.start >= 0 && selectionOfNode(node.key()) == (TextSelection{node.start, node.length}));
    }
    return 0;
}
