// What the program is told of HTML and CSS: files that stand where users may put their own.
#include "codeknowledge/codeBranch.h"
#include "fuzz/fuzzInput.h"

namespace
{
/// Each node stands under one that came before it, and there in its row.
void isTree(const CodeBranch &branch)
{
    HAS_TO_HOLD(branch.size() > 0);
    int below = 0;
    for (int number = 0; number < branch.size(); ++number) {
        const TreeNode node = branch.node(number);
        HAS_TO_HOLD(node.parent == branch.parentOf(number));
        HAS_TO_HOLD(number == 0 ? node.parent == -1 : node.parent >= 0 && node.parent < number);
        HAS_TO_HOLD(number == 0 || branch.child(node.parent, branch.rowOf(number)) == number);
        below += branch.childCount(number);
    }
    HAS_TO_HOLD(below == branch.size() - 1);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes = FuzzInput(data, size).rest();
    isTree(CodeBranch::ofHtml(bytes));
    isTree(CodeBranch::ofCss(bytes));
    return 0;
}
