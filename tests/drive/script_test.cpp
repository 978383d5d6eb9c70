#include "drive/script.h"

#include <gmock/gmock.h>

using drive::Line;
using drive::parseScript;
using drive::Script;

namespace
{
struct WordsRow {
    const char *line;
    QStringList words; ///< the command first
};

QStringList wordsOf(const Line &line)
{
    return QStringList{line.command} + line.words;
}

int errorLine(const char *text)
{
    const Script script = parseScript(QString::fromUtf8(text));
    return script.error ? script.error->line : -1;
}
} // namespace

TEST(Script, PartsWordsAtBlanksAndReadsEscapesInQuotedOnesOnly)
{
    const WordsRow rows[] = {
        {"start", {"start"}},
        {"  type\tabc  ", {"type", "abc"}},
        {"type \"a b\"", {"type", "a b"}},
        {"type \"\"", {"type", ""}},
        {R"(type "say \"hi\"")", {"type", "say \"hi\""}},
        {R"(type "a\\b\r\n\t\u{A0}\u{1F600}")", {"type", QString::fromUtf8("a\\b\r\n\t\u00A0\U0001F600")}},
        {R"(file C:\a.b\new "x")", {"file", R"(C:\a.b\new)", "x"}},
        {R"(node t "A\>B>C" click)", {"node", "t", R"(A\>B>C)", "click"}},
        {R"(expect-match t Text "\d+ .*")", {"expect-match", "t", "Text", R"(\d+ .*)"}},
        {R"(expect-dialog open "Title=Save As" Filter=a"b)", {"expect-dialog", "open", "Title=Save As", "Filter=a\"b"}},
        {"type #1", {"type", "#1"}},
        {"type \"<<END\"", {"type", "<<END"}},
        {"type <<END x", {"type", "<<END", "x"}},
    };
    for (const WordsRow &row : rows) {
        const Script script = parseScript(QString::fromUtf8(row.line));
        ASSERT_FALSE(script.error) << row.line << ": " << qPrintable(script.error->reason);
        ASSERT_EQ(script.lines.size(), 1U) << row.line;
        EXPECT_EQ(wordsOf(script.lines[0]), row.words) << row.line;
    }
}

TEST(Script, LeavesOutCommentsAndEmptyLinesButCountsThem)
{
    const Script script = parseScript(QStringLiteral("# one\n\n  # two\nstart\r\n\nexit"));
    ASSERT_EQ(script.lines.size(), 2U);
    EXPECT_EQ(script.lines[0].number, 4);
    EXPECT_EQ(script.lines[0].command, QStringLiteral("start"));
    EXPECT_EQ(script.lines[1].number, 6);
}

TEST(Script, TakesTextUpToEndAsItStands)
{
    const Script script = parseScript(QStringLiteral("file a <<END\n  one \\r\n# two\n\"three\nEND\nexit"));
    ASSERT_EQ(script.lines.size(), 2U);
    EXPECT_EQ(script.lines[0].words, (QStringList{"a", "  one \\r\r\n# two\r\n\"three"}));
    EXPECT_EQ(script.lines[1].number, 6);
}

TEST(Script, TakesAnEmptyTextAndOneEmptyLine)
{
    EXPECT_EQ(parseScript(QStringLiteral("type <<END\nEND")).lines[0].words, QStringList{""});
    EXPECT_EQ(parseScript(QStringLiteral("type <<END\n\n\nEND")).lines[0].words, QStringList{"\r\n"});
}

TEST(Script, NestsBlocks)
{
    const Script script = parseScript(QStringLiteral("when a\n  key F1\n  when b\n    key F2\n  end\nend\nexit"));
    ASSERT_FALSE(script.error);
    ASSERT_EQ(script.lines.size(), 2U);
    const auto &outer = script.lines[0].block;
    ASSERT_EQ(outer.size(), 2U);
    EXPECT_EQ(outer[0].words, QStringList{"F1"});
    ASSERT_EQ(outer[1].block.size(), 1U);
    EXPECT_EQ(outer[1].block[0].words, QStringList{"F2"});
}

TEST(Script, TakesDuringAsABlockWhereItNamesNoActOfItsOwn)
{
    const Script script = parseScript(QStringLiteral(
        "during 3 key F1\nduring 2\n  kill\nend\nwhen-box \"A title\" Yes\n  type a\n  type b\nend\nexit"));
    ASSERT_FALSE(script.error);
    ASSERT_EQ(script.lines.size(), 4U);
    EXPECT_TRUE(script.lines[0].block.empty());
    ASSERT_EQ(script.lines[1].block.size(), 1U);
    EXPECT_EQ(script.lines[1].block[0].command, QStringLiteral("kill"));
    EXPECT_EQ(script.lines[2].words, (QStringList{"A title", "Yes"}));
    EXPECT_EQ(script.lines[2].block.size(), 2U);
}

TEST(Script, TellsTheLineOfWhatIsWrong)
{
    EXPECT_EQ(errorLine("start\ntype \"a"), 2);
    EXPECT_EQ(errorLine("type \"a\"b"), 1);
    EXPECT_EQ(errorLine("start\n\ntype <<END\na\n"), 3);
    EXPECT_EQ(errorLine("when a\nkey F1"), 1);
    EXPECT_EQ(errorLine("start\nduring 3\nkey F1"), 2);
    EXPECT_EQ(errorLine("when-box a OK\nwhen b\nend"), 1);
    EXPECT_EQ(errorLine("start\nend"), 2);
    EXPECT_EQ(errorLine("type \"\\u{110000}\""), 1);
    EXPECT_EQ(errorLine("type \"\\u41\""), 1);
    EXPECT_EQ(errorLine("start"), -1);
}

TEST(Script, MayStartWithTheMarkOfUtf8)
{
    EXPECT_EQ(parseScript(QStringLiteral("\uFEFFstart")).lines[0].command, QStringLiteral("start"));
}

TEST(TargetName, IsAFormWithOrWithoutAControl)
{
    const auto control = drive::parseTargetName(QStringLiteral("frmInsList.picBullet(3)"));
    ASSERT_TRUE(control);
    EXPECT_EQ(control->form, QStringLiteral("frmInsList"));
    EXPECT_EQ(control->control, QStringLiteral("picBullet(3)"));
    EXPECT_FALSE(control->isDocument());

    const auto tool = drive::parseTargetName(QStringLiteral("frmMdi.tbrMain(a.b)"));
    ASSERT_TRUE(tool);
    EXPECT_EQ(tool->control, QStringLiteral("tbrMain(a.b)"));
}

TEST(TargetName, KnowsDocumentsByTheirNumber)
{
    const auto active = drive::parseTargetName(QStringLiteral("doc"));
    ASSERT_TRUE(active && active->isDocument());
    EXPECT_EQ(active->document, 0);
    EXPECT_TRUE(active->control.isEmpty());

    const auto second = drive::parseTargetName(QStringLiteral("doc(2).txtEdit"));
    ASSERT_TRUE(second && second->isDocument());
    EXPECT_EQ(second->document, 2);
    EXPECT_EQ(second->control, QStringLiteral("txtEdit"));
}

TEST(TargetName, RefusesWhatIsNone)
{
    for (const char *text : {"", ".a", "frmA.", "doc(0)", "doc(x).txtEdit", "doc(1", "1frm", "a b"})
        EXPECT_FALSE(drive::parseTargetName(QString::fromUtf8(text))) << text;
}
