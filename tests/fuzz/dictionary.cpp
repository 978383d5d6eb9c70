// A dictionary of the syntax checker, and a page that is checked with it.
#include "codeknowledge/codeBranch.h"
#include "common/codeKnowledge.h"
#include "fuzz/fuzzInput.h"
#include "texttools/checkDictionary.h"
#include "texttools/codeWords.h"
#include "texttools/syntaxScan.h"

namespace
{
/// A few codes, so that most of a page is known.
class FewCodes final : public CodeKnowledge
{
public:
    const CodeElements &elements() const override { return m_elements; }
    QString lstCodeAssistantSyntax(int) const override { return {}; }
    int HtmlCodeNodeCount() const override { return nodeCount(); }
    int nodeCount() const override { return m_codes.size(); }
    TreeNode node(int number) const override { return m_codes.node(number); }
    int parentOf(int number) const override { return m_codes.parentOf(number); }

private:
    CodeBranch m_codes = CodeBranch::ofHtml("\xBB"
                                            "a\r\n\xBB\xBBhref=\r\n\xBBp\r\n\xBB\xBB"
                                            "class=\r\n\xBB"
                                            "br");
    CodeElements m_elements;
};

/// Goes through a page as its user would: one stop is changed, the next one passed over.
void check(QString page, const CheckDictionary &dictionary, const QString &word)
{
    const FewCodes codes;
    const CodeWords words(codes);
    SyntaxScan scan(words, dictionary);
    scan.begin(false);
    for (int stops = 0; stops < 50;) {
        switch (scan.advance(page)) {
        case SyntaxScan::Result::Yield:
            break;
        case SyntaxScan::Result::Stopped: {
            HAS_TO_HOLD(scan.stop().selStart >= 0);
            if (++stops % 2 == 0) {
                const SyntaxScan::Place place = scan.Change(page, scan.stop().word, word);
                if (place.selStart >= 0 && place.selLength >= 0 && place.selStart + place.selLength <= page.size())
                    page.replace(place.selStart, place.selLength, word);
            }
            scan.clearWord();
            scan.begin(true);
            break;
        }
        case SyntaxScan::Result::Finished:
        case SyntaxScan::Result::Failed:
            return;
        }
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const int length = input.number();
    const QByteArray file = input.rest().left(length);
    CheckDictionary dictionary;
    const QStringList lines = dictionaryLines(file);
    for (const QString &line : lines)
        dictionary.add(line);
    const QString row = dictionaryRow(QStringLiteral("p"), QStringLiteral("data-\u00E9="));
    HAS_TO_HOLD(dictionaryLines(withLine(file, row)) == lines + QStringList{row});
    check(input.text(), dictionary, lines.value(0, QStringLiteral("x")));
    return 0;
}
