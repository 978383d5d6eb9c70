// What the program is told of HTML and CSS: files that stand where users may put their own.
#include "codeknowledge/lazyCodeBranch.h"
#include "fuzz/fuzzInput.h"

namespace
{
/// Each node stands under one that came before it, and there in its row.
template <typename Branch>
void isTree(const Branch &branch)
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

CodeBranch branchOf(bool html, const QByteArray &bytes)
{
    return html ? CodeBranch::ofHtml(bytes) : CodeBranch::ofCss(bytes);
}

/// What answers by an outline is the same tree, and one of as many nodes where the file has become another one.
void isOutlined(bool html, const QByteArray &bytes, const QByteArray &later)
{
    const CodeBranch branch = branchOf(html, bytes);
    if (!branch.isComplete())
        return;
    const QByteArray text = CodeOutline::written(branch, bytes);
    const std::optional<CodeOutline> outline = CodeOutline::read(text);
    HAS_TO_HOLD(outline && outline->count() == branch.childCount(0));
    for (const QByteArray &file : {bytes, later}) {
        const LazyCodeBranch lazy(html, *outline, [&] { return branchOf(html, file); });
        for (int row = 0; row < branch.childCount(0); ++row) {
            const int number = branch.child(0, row);
            HAS_TO_HOLD(lazy.child(0, row) == number && lazy.rowOf(number) == row);
            HAS_TO_HOLD(lazy.childCount(number) == branch.childCount(number));
            HAS_TO_HOLD(lazy.node(number) == branch.node(number));
        }
        HAS_TO_HOLD(lazy.whole().size() == branch.size());
        isTree(lazy);
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes = FuzzInput(data, size).rest();
    isTree(CodeBranch::ofHtml(bytes));
    isTree(CodeBranch::ofCss(bytes));
    isOutlined(true, bytes, bytes.chopped(bytes.size() / 2));
    isOutlined(false, bytes, bytes.chopped(bytes.size() / 2));
    return 0;
}
