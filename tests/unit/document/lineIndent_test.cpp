#include "document/lineIndent.h"

#include <gtest/gtest.h>

namespace
{
constexpr IndentStyle Two{2, false, 4};
constexpr IndentStyle Four{4, false, 4};
constexpr IndentStyle Tabs{4, true, 8};

struct Row {
    const char *text;
    TextSelection selection;
    IndentStyle style;
    const char *result;
    TextSelection selectionAfter;
};

using Change = LineChange (*)(QStringView, TextSelection, const IndentStyle &);

template <std::size_t Size>
void expectChanges(const Row (&rows)[Size], Change change)
{
    for (const Row &row : rows) {
        QString text = QString::fromUtf8(row.text);
        const LineChange result = change(text, row.selection, row.style);
        if (result.replacement)
            text.replace(result.replacement->start, result.replacement->length, result.replacement->text);
        EXPECT_EQ(text.toStdString(), row.result) << row.text << " " << row.selection.start;
        EXPECT_EQ(result.selection, row.selectionAfter) << row.text << " " << row.selection.start;
    }
}

TEST(IndentedLines, PutAStepInFrontOfEachLineThatIsSelected)
{
    const Row rows[] = {
        {"abc", {1, 1}, Four, "    abc", {5, 1}},
        {"abc", {0, 3}, Four, "    abc", {0, 7}},
        {"a\r\nb\r\nc", {0, 4}, Two, "  a\r\n  b\r\nc", {0, 8}},
        {"a\r\nb\r\nc", {0, 3}, Two, "  a\r\nb\r\nc", {0, 5}}, // the second line is not selected
        {"ab\r\ncd", {1, 4}, Two, "  ab\r\n  cd", {3, 6}},
        {"a\r\n\r\nb", {0, 6}, Two, "  a\r\n\r\n  b", {0, 10}}, // an empty line stays empty
        {"x\r\na\r\nb", {3, 4}, Tabs, "x\r\n\ta\r\n\tb", {3, 6}},
        {"\r\n", {0, 2}, Two, "\r\n", {0, 2}},
    };
    expectChanges(rows, indentedLines);
}

TEST(OutdentedLines, TakeAStepFromTheFrontOfEachLine)
{
    const Row rows[] = {
        {"    abc", {5, 1}, Four, "abc", {1, 1}},
        {"      abc", {9, 0}, Four, "  abc", {5, 0}},
        {"  abc", {3, 0}, Four, "abc", {1, 0}},
        {"  abc", {1, 0}, Four, "abc", {0, 0}},
        {"abc", {1, 0}, Four, "abc", {1, 0}},
        {"\t\tabc", {3, 0}, Four, "\tabc", {2, 0}},
        {"  \tabc", {4, 0}, Four, "abc", {1, 0}}, // blanks and a tab make one step
        {"    a\r\n  b\r\nc", {0, 13}, Four, "a\r\nb\r\nc", {0, 7}},
        {"    a\r\n    b", {4, 8}, Two, "  a\r\n  b", {2, 6}},
        {"x\r\n    a\r\n    b", {3, 7}, Four, "x\r\na\r\n    b", {3, 3}},
        {"", {0, 0}, Four, "", {0, 0}},
    };
    expectChanges(rows, outdentedLines);
}

TEST(FilledToNextStop, CountsTheColumnsInFrontOfTheCaret)
{
    struct Filling {
        const char *text;
        qsizetype caret;
        IndentStyle style;
        const char *put;
    };
    const Filling rows[] = {
        {"", 0, Four, "    "},      {"a", 1, Four, "   "},   {"abc", 3, Four, " "},          {"abcd", 4, Four, "    "},
        {"x\r\nab", 5, Four, "  "}, {"\ta", 2, Four, "   "}, {"a\t", 2, {3, false, 8}, " "}, {"ab", 2, Tabs, "\t"},
    };
    for (const Filling &row : rows) {
        const LineChange result = filledToNextStop(QString::fromUtf8(row.text), row.caret, row.style);
        ASSERT_TRUE(result.replacement) << row.text;
        EXPECT_EQ(result.replacement->text.toStdString(), row.put) << row.text;
        EXPECT_EQ(result.replacement->start, row.caret) << row.text;
        EXPECT_EQ(result.replacement->length, 0) << row.text;
        EXPECT_EQ(result.selection, (TextSelection{row.caret + result.replacement->text.size(), 0})) << row.text;
    }
}

TEST(IndentationBefore, IsWhatStandsInFrontOfTheCaretsLine)
{
    EXPECT_EQ(indentationBefore(u"  ab", 4), QStringLiteral("  "));
    EXPECT_EQ(indentationBefore(u"  ab", 1), QStringLiteral(" "));
    EXPECT_EQ(indentationBefore(u"  a\r\n\t b", 8), QStringLiteral("\t "));
    EXPECT_EQ(indentationBefore(u"ab", 2), QString());
}
} // namespace
