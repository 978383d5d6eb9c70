#include "document/syntaxOptimiser.h"

#include "unit/document/indentReference.h"
#include "unit/document/randomTexts.h"

#include <gtest/gtest.h>

namespace
{
struct OptimiserRow {
    const char *text;
    const char *result;
};

std::string optimised(const char *text)
{
    UndoHistory history;
    const QString string = QString::fromUtf8(text);
    SyntaxOptimiser optimiser(string, history);
    while (optimiser.advance()) {
    }
    EXPECT_EQ(optimiser.hasChanged(), optimiser.text() != string) << text;
    return optimiser.text().toStdString();
}

template <std::size_t Size>
void expectOptimised(const OptimiserRow (&rows)[Size])
{
    for (const OptimiserRow &row : rows)
        EXPECT_EQ(optimised(row.text), row.result) << row.text;
}

TEST(SyntaxOptimiser, IndentsTheLinesBetweenOpeningAndClosing)
{
    const OptimiserRow rows[] = {
        {"<ul>\r\n<li>a\r\n<li>b\r\n</ul>", "<ul>\r\n    <li>a\r\n    <li>b\r\n</ul>"},
        {"<UL>\r\n<li>a\r\n</Ul>", "<UL>\r\n    <li>a\r\n</Ul>"},
        {"<p>\r\n<table x>\r\nabcd\r\n</table>", "<p>\r\n<table x>\r\n    abcd\r\n</table>"},
        {"<tr><td>\r\nabcd\r\n</td>\r\n</tr>", "<tr><td>\r\n    abcd\r\n</td>\r\n</tr>"}, // td goes before tr
        {"<tr>\r\nabcd\r\n</tr>", "<tr>\r\n    abcd\r\n</tr>"},
        {"<ol>\r\nabcd\r\n</ol>\r\n", "<ol>\r\n    abcd\r\n</ol>\r\n"},
        {"<title>\r\nabcd\r\n</title>", "<title>\r\n    abcd\r\n</title>"},
        {"<head>\r\nabcd\r\n</head>", "<head>\r\n    abcd\r\n</head>"},
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, TakesEachElementInItsTurnButTheFirstLineOfContents)
{
    const OptimiserRow rows[] = {
        {"<body>\r\n<p>\r\n<ul>\r\n<li>aaaa\r\n</ul>\r\n</body>",
         "<body>\r\n    <p>\r\n    <ul>\r\n        <li>aaaa\r\n    </ul>\r\n</body>"},
        // Meant so: the line behind an opening tag is passed over.
        {"<body>\r\n<ul>\r\n<li>a\r\n</ul>\r\n</body>", "<body>\r\n    <ul>\r\n    <li>a\r\n    </ul>\r\n</body>"},
        {"<ul>\r\n<ol>\r\nabcd\r\nefgh\r\n</ol>", "<ul>\r\n<ol>\r\nabcd\r\nefgh\r\n</ol>"},
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, IndentsAgainInASecondRun)
{
    const OptimiserRow rows[] = {
        {"<ul>\r\n    <li>a\r\n    <li>b\r\n</ul>", "<ul>\r\n        <li>a\r\n        <li>b\r\n</ul>"},
        // The line of an indented closing tag is left out where a step stands in front of it.
        {"<ul>\r\n    <li>a\r\n    </ul>", "<ul>\r\n        <li>a\r\n    </ul>"},
        // Without a line end in front of it there is nothing to shorten to, and the step goes in at the caret.
        {"<ul>\r\n    a</ul>", "<ul>\r\n        a</ul>"},
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, IsMeantToMissALaterLineInTheLastFourCharacters)
{
    const OptimiserRow rows[] = {
        {"<ul>\r\na\r\nb\r\nc\r\n</ul>", "<ul>\r\n    a\r\n    b\r\nc\r\n</ul>"},
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, KnowsItsElementsByTheirFirstLettersOnly)
{
    const OptimiserRow rows[] = {
        {"<thead>\r\nabcd\r\n</thead>", "<thead>\r\nabcd\r\n</thead>"},
        {"<tbody>\r\nabcd\r\n</tbody>", "<tbody>\r\nabcd\r\n</tbody>"},
        {"<option>\r\nabcd\r\n</option>", "<option>\r\nabcd\r\n</option>"},
        {"<header>\r\nabcd\r\n</header>", "<header>\r\n    abcd\r\n</header>"},
        {"<bodyx>\r\nabcd\r\n</body>", "<bodyx>\r\n    abcd\r\n</body>"},
        {"<title>T</title>\r\nabcd\r\n</head>", "<title>T</title>\r\nabcd\r\n</head>"},
        {"<title>T</title>\r\nabcd\r\n</title>", "<title>T</title>\r\n    abcd\r\n</title>"},
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, LeavesAloneWhatHasNoLinesToIndent)
{
    const OptimiserRow rows[] = {
        {"", ""},
        {"x", "x"},
        {"\r\n", "\r\n"},
        {"x<ul>y</ul>", "x<ul>y</ul>"},     // one line
        {"<ul>\r\n</ul>", "<ul>\r\n</ul>"}, // nothing in it
        {"a\r\n<ul>", "a\r\n<ul>"},         // no next line
        {"<ul>\r\n", "<ul>\r\n"},
        {"<ul>\r\na\r\nb", "<ul>\r\na\r\nb"}, // never closed
        {"x\r\n<ul>\r\ny", "x\r\n<ul>\r\ny"}, // the same in the last line but one: the run ends there
    };
    expectOptimised(rows);
}

TEST(SyntaxOptimiser, EndsBehindTheLastLineThatItIndented)
{
    // The contents stand in the last line of all; going on would find the same opening tag again without end.
    EXPECT_EQ(optimised("x\r\n<ul>\r\n<li></ul>"), "x\r\n<ul>\r\n    <li></ul>");
    EXPECT_EQ(optimised("x\r\n<ul>\r\n    <li></ul>"), "x\r\n<ul>\r\n        <li></ul>");
}

TEST(SyntaxOptimiser, IsMeantToGoBackToTheTopOnceWhereThatLeadsToAnEnd)
{
    // The third line opens what never closes, and no line break follows in the fourth. From the top, less the first
    // tag's "<", the second line is looked at, which was passed over before, and the third is passed over.
    EXPECT_EQ(optimised("<ul>\r\n<ol>\r\n<td>\r\nab</ol>cd</ul>"),
              "<ul>\r\n    <ol>\r\n        <td>\r\n    ab</ol>cd</ul>");
}

TEST(SyntaxOptimiser, LetsEventsRunAtEachLine)
{
    UndoHistory history;
    SyntaxOptimiser optimiser(QStringLiteral("<ul>\r\n<li>a\r\n<li>b\r\n</ul>"), history);
    int lines = 0;
    while (optimiser.advance())
        ++lines;
    EXPECT_EQ(lines, 3); // "<ul>" takes the line behind it
    EXPECT_FALSE(optimiser.advance());
}

TEST(SyntaxOptimiser, LeavesASnapshotOfEachElement)
{
    UndoHistory history;
    history.UndoRedoChange({QStringLiteral("before"), {0, 0}});
    SyntaxOptimiser optimiser(QStringLiteral("<ul>\r\n<li>a\r\n<li>b\r\n</ul>\r\n<ol>\r\nabcd\r\n</ol>"), history);
    while (optimiser.advance()) {
    }
    const auto first = history.Undo();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text, QStringLiteral("<ul>\r\n    <li>a\r\n    <li>b\r\n</ul>\r\n<ol>\r\nabcd\r\n</ol>"));
    EXPECT_EQ(first->selection, (TextSelection{6, 25}));
    const auto before = history.Undo();
    ASSERT_TRUE(before);
    EXPECT_EQ(before->text, QStringLiteral("before"));
    history.Redo();
    const auto second = history.Redo();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->text, optimiser.text());
    EXPECT_EQ(second->selection, (TextSelection{41, 15}));
}

const QStringList BlockWords = {
    QStringLiteral("<ul"),   QStringLiteral("</ul"),   QStringLiteral("<UL"),    QStringLiteral("</Ul"),
    QStringLiteral("<ol"),   QStringLiteral("</ol"),   QStringLiteral("<td"),    QStringLiteral("</td"),
    QStringLiteral("<tr"),   QStringLiteral("</tr"),   QStringLiteral("<table"), QStringLiteral("</table"),
    QStringLiteral("<head"), QStringLiteral("</head"), QStringLiteral("\r\n"),   QStringLiteral("\r\n"),
    QStringLiteral("\r\n"),  QStringLiteral("\r\n"),   QStringLiteral("\r\n"),   QStringLiteral("\r\n"),
    QStringLiteral("    "),  QStringLiteral(" "),      QStringLiteral("a"),      QStringLiteral("bcdef"),
};

/// The snapshots that a history holds, the newest first.
std::vector<IndentReference::Snapshot> snapshotsOf(UndoHistory history)
{
    // One more on top lets Undo give the newest too.
    history.UndoRedoChange({QStringLiteral("top"), {0, 0}});
    std::vector<IndentReference::Snapshot> result;
    while (const auto entry = history.Undo())
        result.push_back(
            {entry->text, static_cast<int>(entry->selection.start), static_cast<int>(entry->selection.length)});
    return result;
}

void expectAgreement(const QString &text, const IndentReference &reference)
{
    UndoHistory history;
    SyntaxOptimiser optimiser(text, history);
    int lines = 0;
    while (optimiser.advance())
        ++lines;
    const std::string quoted = testing::PrintToString(text.toStdString());
    ASSERT_EQ(optimiser.text().toStdString(), reference.txtEdit.Text().toStdString()) << quoted;
    ASSERT_EQ(lines, reference.lines) << quoted;
    ASSERT_EQ(snapshotsOf(history),
              std::vector<IndentReference::Snapshot>(reference.snapshots.rbegin(), reference.snapshots.rend()))
        << quoted;
}

TEST(SyntaxOptimiserRandom, AgreesWithTheReference)
{
    RandomTexts random(20260305);
    int circles = 0;
    for (int i = 0; i < 100000; ++i) {
        const QString text = random.text(random.onceIn(5) ? MarkupCharacters + BlockWords : BlockWords, 20);
        IndentReference reference(text);
        if (reference.OptimiseSyntax(IndentReference::AtLastLine::GoesBackToTheTop, 60) ==
            IndentReference::Outcome::GaveUp) {
            ++circles;
            reference = IndentReference(text);
            ASSERT_EQ(reference.OptimiseSyntax(IndentReference::AtLastLine::Ends, 60), IndentReference::Outcome::Ended);
        }
        ASSERT_NO_FATAL_FAILURE(expectAgreement(text, reference)) << i;
    }
    // Most of the texts end by themselves, and enough of them do not.
    EXPECT_GT(circles, 1000);
    EXPECT_LT(circles, 40000);
}
} // namespace
