#include "codeknowledge/tagHelp.h"

#include "common/codeKnowledge.h"
#include "surface/editSurface.h"
#include "unit/document/randomTexts.h"

#include <gtest/gtest.h>

namespace
{
QString tagAtMark(const char *marked)
{
    QString text = QString::fromUtf8(marked);
    const qsizetype caret = text.indexOf(u'|');
    EditSurface surface;
    surface.setText(text.remove(caret, 1));
    surface.setSelStart(caret);
    return ReadTagAtCaret(surface);
}

TEST(ReadTagAtCaret, IsWhatStandsBetweenTheBrackets)
{
    const struct {
        const char *marked;
        const char *tag;
    } rows[] = {
        {"<td| align=left>x", "td align=left"},
        {"<|td>x", "td"},
        {"<td>|x", "td"}, // directly behind the bracket, too
        {"<td>x|y</td>", "td>xy</td"},
        {"a<b>c|<d>", "b>c<d"},
        {"</TD|>", "/TD"},
        {"<td|", "td"},
        {"plain |text", "plain text"},
        {"one>two|", "one>two"},
        {"one> two| three>", "one> two three"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(tagAtMark(row.marked), QString::fromUtf8(row.tag)) << row.marked;
}

TEST(ReadTagAtCaret, EndsAtTheEndsOfTheLine)
{
    EXPECT_EQ(tagAtMark("<td\r\nalign=|left\r\nx>"), QStringLiteral("align=left"));
    EXPECT_EQ(tagAtMark("<td\r\n|align=left>"), QString()) << "at the start of a line there is nothing";
    EXPECT_EQ(tagAtMark("<td|\r\nalign=left>"), QStringLiteral("td"));
}

TEST(ReadTagAtCaret, IsNothingAtTheStartOfTheText)
{
    EXPECT_EQ(tagAtMark("|<td>"), QString());
    EXPECT_EQ(tagAtMark("|"), QString());
}

TEST(ReadTagAtCaret, FindsFarBrackets)
{
    EditSurface surface;
    const QString inside(400'000, u'x');
    surface.setText(u'<' + inside + u'>');
    surface.setSelStart(200'000);
    EXPECT_EQ(ReadTagAtCaret(surface), inside);
}

/// The rules step by step over the whole text; nothing is found in front of the first character.
QString referenceTag(const QString &text, int caret)
{
    if (caret == 0)
        return {};
    const auto isOneOf = [&](int place, const QString &stops) { return stops.contains(text[place - 1]); };
    int i = caret;
    while (i >= 1 && !isOneOf(i, QStringLiteral("<\r\n")))
        --i;
    int j = caret;
    while (j <= text.size() && !isOneOf(j, QStringLiteral(">\r\n")))
        ++j;
    const int start = i + 1;
    const int end = j - 1;
    return start <= end ? text.mid(start - 1, end - start + 1) : QString();
}

TEST(ReadTagAtCaret, HoldsToItsRulesAtEveryPlaceOfRandomTexts)
{
    RandomTexts random(11);
    const QStringList pieces{QStringLiteral("<"), QStringLiteral(">"), QStringLiteral("a"),
                             QStringLiteral(" "), QStringLiteral("b"), QStringLiteral("\r\n")};
    for (int round = 0; round < 300; ++round) {
        const QString text = random.text(pieces, 25);
        EditSurface surface;
        surface.setText(text);
        for (int caret = 0; caret <= text.size(); ++caret) {
            surface.setSelStart(caret);
            ASSERT_EQ(ReadTagAtCaret(surface), referenceTag(text, static_cast<int>(surface.SelStart())))
                << qPrintable(text) << " at " << caret;
        }
    }
}

class FewElements final : public CodeKnowledge
{
public:
    explicit FewElements(const QStringList &names) { m_elements.lstCodeAssistantElements = names; }
    const CodeElements &elements() const override { return m_elements; }
    QString lstCodeAssistantSyntax(int) const override { return {}; }
    int HtmlCodeNodeCount() const override { return 0; }
    int nodeCount() const override { return 0; }
    TreeNode node(int) const override { return {}; }
    int parentOf(int) const override { return -1; }

private:
    CodeElements m_elements;
};

TEST(TagHelpTopic, IsThePageOfTheElementOrTheOneForNone)
{
    const FewElements codes({QStringLiteral("<td"), QStringLiteral("<Body")});
    const QString none = QStringLiteral("::/topics/reference/Information_KeywordNotFound.htm");
    const QString td = QStringLiteral("::/topics/reference/Tag_TD.htm");
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("td")), td);
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("/TD")), td);
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("td align=left")), td);
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("body")), QStringLiteral("::/topics/reference/Tag_BODY.htm"));
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("tdx")), none);
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("t")), none);
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral(" td")), none) << "nothing stands before the first blank";
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("//td")), none) << "one stroke is passed over";
    EXPECT_EQ(tagHelpTopic(codes, QStringLiteral("/")), none);
    EXPECT_EQ(tagHelpTopic(codes, QString()), none);
    EXPECT_EQ(tagHelpTopic(FewElements({QStringLiteral("<")}), QString()), none)
        << "no word is no element, whatever the list";
    EXPECT_EQ(tagHelpTopic(FewElements({}), QStringLiteral("td")), none);
}
} // namespace
