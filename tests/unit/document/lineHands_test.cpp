#include "document/lineHands.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    TextSelection selection;
    const char *result;
    TextSelection selectionAfter;
};

template <std::size_t Size, class Change>
void expectChanges(const Row (&rows)[Size], const Change &change)
{
    for (const Row &row : rows) {
        QString text = QString::fromUtf8(row.text);
        const LineChange result = change(text, row.selection);
        if (result.replacement)
            text.replace(result.replacement->start, result.replacement->length, result.replacement->text);
        EXPECT_EQ(text.toStdString(), row.result) << row.text << " " << row.selection.start;
        EXPECT_EQ(result.selection, row.selectionAfter) << row.text << " " << row.selection.start;
    }
}

TEST(MovedLines, GoUpWithTheirSelection)
{
    const Row rows[] = {
        {"a\r\nbb", {4, 0}, "bb\r\na", {1, 0}},
        {"a\r\nbb\r\nc", {3, 5}, "bb\r\nc\r\na", {0, 5}},
        {"a\r\nb\r\nc", {3, 3}, "b\r\na\r\nc", {0, 3}}, // ends at the start of the third
        {"a\r\nb", {0, 1}, "a\r\nb", {0, 1}},
        {"", {0, 0}, "", {0, 0}},
        {"\r\nx", {2, 0}, "x\r\n", {0, 0}},
    };
    expectChanges(rows, [](QStringView text, TextSelection selection) { return movedLines(text, selection, true); });
}

TEST(MovedLines, GoDownWithTheirSelection)
{
    const Row rows[] = {
        {"a\r\nbb", {0, 0}, "bb\r\na", {4, 0}},
        {"a\r\nb\r\nc", {0, 4}, "c\r\na\r\nb", {3, 4}},
        {"a\r\nb", {0, 3}, "b\r\na", {3, 1}}, // the break behind them is no more
        {"a\r\nb", {3, 1}, "a\r\nb", {3, 1}},
    };
    expectChanges(rows, [](QStringView text, TextSelection selection) { return movedLines(text, selection, false); });
}

TEST(DoubledLines, StandBelowAndAreSelected)
{
    const Row rows[] = {
        {"ab", {1, 0}, "ab\r\nab", {5, 0}},
        {"a\r\nb\r\nc", {0, 4}, "a\r\nb\r\na\r\nb\r\nc", {6, 4}},
        {"a\r\nb", {0, 3}, "a\r\na\r\nb", {3, 3}},
        {"", {0, 0}, "\r\n", {2, 0}},
    };
    expectChanges(rows, doubledLines);
}

TEST(RemovedLines, GoWithTheirBreak)
{
    const Row rows[] = {
        {"ab\r\ncd\r\nef", {5, 0}, "ab\r\nef", {5, 0}},
        {"abc\r\nd", {3, 0}, "d", {1, 0}},  // no further than the line goes
        {"ab\r\ncd", {5, 0}, "ab", {1, 0}}, // the last one takes the break before it
        {"ab\r\ncd\r\nef", {1, 5}, "ef", {1, 0}},
        {"ab\r\ncd\r\nef", {0, 8}, "ef", {0, 0}},
        {"ab", {1, 0}, "", {0, 0}},
        {"", {0, 0}, "", {0, 0}},
        {"ab\r\n", {4, 0}, "ab", {0, 0}},
    };
    expectChanges(rows, removedLines);
}

TEST(ToggledComment, TakesSignsWithABlankInside)
{
    const Row rows[] = {
        {"<p>a</p>", {3, 0}, "<!-- <p>a</p> -->", {8, 0}},
        {"<!-- <p>a</p> -->", {8, 0}, "<p>a</p>", {3, 0}},
        {"<!--<p>a</p>-->", {7, 0}, "<p>a</p>", {3, 0}},
        {"  <p>\r\n  </p>", {0, 13}, "  <!-- <p>\r\n  </p> -->", {0, 22}},
        {"  <!-- <p>\r\n  </p> -->", {0, 22}, "  <p>\r\n  </p>", {0, 13}},
        {"a\r\nb", {3, 0}, "a\r\n<!-- b -->", {8, 0}},
        {"<!---->", {0, 0}, "", {0, 0}},
        {"  \r\nb", {1, 0}, "  \r\nb", {1, 0}},
        {"<style>\r\np {}\r\n</style>", {10, 0}, "<style>\r\n/* p {} */\r\n</style>", {13, 0}},
        {"<style>\r\n/* p {} */\r\n</style>", {13, 0}, "<style>\r\np {}\r\n</style>", {10, 0}},
        {"<script>\r\n  a;\r\n    b;\r\n</script>",
         {10, 14},
         "<script>\r\n  // a;\r\n  //   b;\r\n</script>",
         {10, 20}},
        {"<script>\r\n  // a;\r\n  //   b;\r\n</script>",
         {10, 20},
         "<script>\r\n  a;\r\n    b;\r\n</script>",
         {10, 14}},
        {"<script>\r\n// a;\r\nb;\r\n</script>", {10, 9}, "<script>\r\n// // a;\r\n// b;\r\n</script>", {10, 15}},
        {"<script>a</script>", {9, 0}, "<!-- <script>a</script> -->", {14, 0}}, // the line begins outside
        {"<scripts>\r\na", {12, 0}, "<scripts>\r\n<!-- a -->", {17, 0}},
    };
    expectChanges(rows, [](QStringView text, TextSelection selection) { return toggledComment(text, selection, {}); });
}

TEST(ToggledComment, GoesByTheKindOfFile)
{
    const auto commented = [](const char *path) {
        return toggledComment(u"a", {0, 0}, QLatin1String(path)).replacement.value_or(TextReplacement{}).text;
    };
    EXPECT_EQ(commented("/x/a.css"), QStringLiteral("/* a */"));
    EXPECT_EQ(commented("/x/a.JS"), QStringLiteral("// a"));
    EXPECT_EQ(commented("/x/a.html"), QStringLiteral("<!-- a -->"));
    EXPECT_EQ(commented(""), QStringLiteral("<!-- a -->"));
}
} // namespace
