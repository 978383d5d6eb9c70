#include "document/indentation.h"

#include "unit/document/indentReference.h"
#include "unit/document/randomTexts.h"

#include <gtest/gtest.h>

namespace
{
struct IndentRow {
    const char *text;
    TextSelection selection;
    const char *result;
    TextSelection selectionAfter;
    std::optional<TextSelection> recorded; ///< nothing: no snapshot
};

QString applied(QString text, const IndentResult &result)
{
    if (result.replacement)
        text.replace(result.replacement->start, result.replacement->length, result.replacement->text);
    return text;
}

template <std::size_t Size>
void expectIndents(const IndentRow (&rows)[Size], bool indent)
{
    for (const IndentRow &row : rows) {
        const QString text = QString::fromUtf8(row.text);
        const IndentResult result = IndentText(text, row.selection, indent);
        EXPECT_EQ(applied(text, result).toStdString(), row.result) << row.text;
        EXPECT_EQ(result.selection, row.selectionAfter) << row.text;
        EXPECT_EQ(result.recorded, row.recorded) << row.text;
    }
}

TEST(IndentText, PutsAStepInAtTheCaret)
{
    const IndentRow rows[] = {
        {"", {0, 0}, "    ", {4, 0}, {}},
        {"ab", {1, 0}, "a    b", {5, 0}, {}},
        {"ab", {2, 0}, "ab    ", {6, 0}, {}},
    };
    expectIndents(rows, true);
}

TEST(IndentText, PutsAStepInFrontOfEachSelectedLine)
{
    const IndentRow rows[] = {
        {"abc", {1, 1}, "a    bc", {1, 0}, TextSelection{1, 6}},
        {"abcdefghijklmnop", {1, 1}, "a    bcdefghijklmnop", {1, 0}, TextSelection{1, 13}},
        {"abcd\r\nefgh\r\nijkl", {0, 16}, "    abcd\r\n    efgh\r\n    ijkl", {0, 0}, TextSelection{0, 28}},
        {"abcd\r\nefgh\r\nijklmnopqrst",
         {0, 16},
         "    abcd\r\n    efgh\r\n    ijklmnopqrst",
         {0, 0},
         TextSelection{0, 32}},
        // A selection that ends with a line break puts a step on the line behind it.
        {"ab\r\ncd", {0, 4}, "    ab\r\n    cd", {0, 0}, TextSelection{0, 14}},
    };
    expectIndents(rows, true);
}

TEST(IndentText, IsMeantToMissALaterBreakInTheLastFourCharacters)
{
    const IndentRow rows[] = {
        {"a\r\nb\r\nc", {0, 7}, "    a\r\n    b\r\nc", {0, 0}, TextSelection{0, 15}},
        {"a\r\nb\r\ncd", {0, 8}, "    a\r\n    b\r\ncd", {0, 0}, TextSelection{0, 16}},
        {"a\r\nb\r\ncde", {0, 9}, "    a\r\n    b\r\ncde", {0, 0}, TextSelection{0, 17}},
        {"a\r\nb\r\ncdef", {0, 10}, "    a\r\n    b\r\n    cdef", {0, 0}, TextSelection{0, 22}},
        // The first break counts wherever it stands.
        {"abc\r\nd", {0, 6}, "    abc\r\n    d", {0, 0}, TextSelection{0, 14}},
    };
    expectIndents(rows, true);
}

TEST(IndentText, TakesAStepOutInFrontOfTheCaret)
{
    const IndentRow rows[] = {
        {"    ab", {4, 0}, "ab", {0, 0}, {}},
        {"x    ab", {5, 0}, "xab", {1, 0}, {}},
        {"   ab", {4, 0}, "   ab", {4, 0}, {}},
        {"   \tab", {4, 0}, "   \tab", {4, 0}, {}},
        // Fewer than four characters in front: the step behind the caret is left alone.
        {"    ab", {0, 0}, "    ab", {0, 0}, {}},
        {"       ab", {3, 0}, "       ab", {3, 0}, {}},
    };
    expectIndents(rows, false);
    EXPECT_TRUE(IndentText(u"    ab", {4, 0}, false).takesFocus);
    EXPECT_FALSE(IndentText(u"   ab", {4, 0}, false).takesFocus);
    EXPECT_FALSE(IndentText(u"    ab", {0, 2}, false).takesFocus);
}

TEST(IndentText, TakesAStepOutOfEachSelectedLine)
{
    const IndentRow rows[] = {
        {"    ab", {0, 6}, "ab", {0, 0}, TextSelection{0, 2}},
        {"    abcdef", {0, 10}, "abcdef", {0, 0}, TextSelection{0, 2}},
        {"    a\r\n    b", {0, 12}, "a\r\nb", {0, 0}, TextSelection{0, 0}},
        {"        a\r\n        b", {0, 20}, "    a\r\n    b", {0, 0}, TextSelection{0, 8}},
        {"    a\r\nb\r\n    c", {0, 15}, "a\r\nb\r\nc", {0, 0}, TextSelection{0, 3}},
        // The four characters are looked at even if fewer are selected.
        {"    ab", {0, 2}, "ab", {0, 0}, TextSelection{0, 0}},
    };
    expectIndents(rows, false);
}

TEST(IndentText, IsMeantToDoNothingWhereTheSelectionsFirstLineHasNoStep)
{
    const IndentRow rows[] = {
        {"a\r\n    b", {0, 8}, "a\r\n    b", {0, 0}, {}},
        {"x    a", {0, 6}, "x    a", {0, 0}, {}},
        {"   ", {0, 3}, "   ", {0, 0}, {}},
    };
    expectIndents(rows, false);
}

TEST(IndentText, IsMeantToOutdentALaterLineThatBeginsAtTheSelectionsEnd)
{
    // From the second step taken out on, the search reaches four characters too far.
    const IndentRow rows[] = {
        {"    a\r\n    b\r\n    cd", {0, 14}, "a\r\nb\r\ncd", {0, 0}, TextSelection{0, 2}},
        {"    a\r\n    b\r\n    cd", {0, 13}, "a\r\nb\r\n    cd", {0, 0}, TextSelection{0, 5}},
        {"    a\r\n    b", {0, 7}, "a\r\n    b", {0, 0}, TextSelection{0, 3}},
    };
    expectIndents(rows, false);
}

TEST(IndentTextRandom, AgreesWithTheReference)
{
    const QStringList lines = {QStringLiteral("    "), QStringLiteral("\r\n"), QStringLiteral("\r\n    "),
                               QStringLiteral(" "),    QStringLiteral("a"),    QStringLiteral("bcdef")};
    RandomTexts random(20260304);
    for (int i = 0; i < 100000; ++i) {
        const QString text = random.text(random.onceIn(3) ? MarkupCharacters : lines, 16);
        const auto size = static_cast<int>(text.size());
        const int start = random.below(size + 1);
        const int length = random.onceIn(3) ? 0 : random.below(size - start + 1);
        const bool indent = random.onceIn(2);

        IndentReference reference(text);
        reference.txtEdit.setSelStart(start);
        reference.txtEdit.setSelLength(length);
        reference.IndentText(indent);
        const IndentResult result = IndentText(text, {start, length}, indent);

        const auto where = testing::Message() << i << ": " << testing::PrintToString(text.toStdString()) << ' ' << start
                                              << ' ' << length << (indent ? " in" : " out");
        const QString after = applied(text, result);
        ASSERT_EQ(after, reference.txtEdit.Text()) << where;
        ASSERT_EQ(result.selection, (TextSelection{reference.txtEdit.SelStart(), reference.txtEdit.SelLength()}))
            << where;
        ASSERT_EQ(result.takesFocus, reference.tookFocus) << where;
        ASSERT_EQ(result.recorded.has_value(), !reference.snapshots.empty()) << where;
        if (result.recorded) {
            const IndentReference::Snapshot expected{after, static_cast<int>(result.recorded->start),
                                                     static_cast<int>(result.recorded->length)};
            ASSERT_EQ(reference.snapshots.front(), expected) << where;
        }
    }
}
} // namespace
