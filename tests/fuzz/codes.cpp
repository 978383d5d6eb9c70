// What the program is told of HTML and CSS: files that stand where users may put their own.
#include "codeknowledge/codeFiles.h"
#include "common/encodings.h"
#include "fuzz/fuzzInput.h"

namespace
{
/// Each node stands under one that came before it.
void isTree(const CodeBranch &branch)
{
    for (std::size_t number = 0; number < branch.nodes.size(); ++number) {
        const int parent = branch.nodes[number].parent;
        HAS_TO_HOLD(parent >= -1 && parent < static_cast<int>(number));
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QString text = decodeOwnFile(FuzzInput(data, size).rest());
    const HtmlCodes html = readHtmlCodes(text);
    isTree(html.branch);
    const qsizetype elements = html.elements.lstCodeAssistantElements.size();
    HAS_TO_HOLD(html.elements.lstCodeAssistantElementsFull.size() == elements);
    HAS_TO_HOLD(html.elements.lstCodeAssistantSyntax.size() >= elements - 1);
    isTree(readCssCodes(text));
    return 0;
}
