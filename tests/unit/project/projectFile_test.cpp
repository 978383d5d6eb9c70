#include "project/projectFile.h"

#include "common/encodings.h"

#include <gmock/gmock.h>
#include <random>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;
using Verdict = ProjectReading::Verdict;

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

/// A project file whose head is in order, with these lines behind it.
QString file(const char *lines)
{
    return q("Tagwrighter Site Project File\r\n[VERSION]\r\n1.0.0\r\n") + q(lines);
}

ProjectFileLine page(const char *path)
{
    return {q(path), true};
}

ProjectFileLine other(const char *path)
{
    return {q(path), false};
}

TEST(ProjectFileText, LeavesOutWhatIsEmpty)
{
    EXPECT_EQ(projectFileText({}), q("Tagwrighter Site Project File\r\n[VERSION]\r\n1.0.0\r\n"));
}

TEST(ProjectFileText, HoldsNamesAndListsInTheirOrder)
{
    const QString text = projectFileText({.siteName = q("Garden"),
                                          .siteAuthor = q("Ann"),
                                          .editorFiles = {q("/s/b.htm"), q("/s/a.htm")},
                                          .otherFiles = {q("/s/x.gif")}});
    EXPECT_EQ(text, q("Tagwrighter Site Project File\r\n[VERSION]\r\n1.0.0\r\n[SITENAME]\r\nGarden\r\n"
                      "[SITEAUTHOR]\r\nAnn\r\n[EDITORFILES]\r\n/s/b.htm\r\n/s/a.htm\r\n[OTHERFILES]\r\n/s/x.gif\r\n"));
}

TEST(ProjectFileText, LeavesOutTheOneListThatIsEmpty)
{
    EXPECT_FALSE(projectFileText({.editorFiles = {q("/a.htm")}}).contains(q("[OTHERFILES]")));
    EXPECT_FALSE(projectFileText({.otherFiles = {q("/a.gif")}}).contains(q("[EDITORFILES]")));
}

TEST(ReadProjectFile, TakesNamesAndLists)
{
    const ProjectReading reading = readProjectFile(
        file("[SITENAME]\r\nGarden\r\n[SITEAUTHOR]\r\nAnn\r\n[EDITORFILES]\r\n/a.htm\r\n[OTHERFILES]\r\n/x.gif\r\n"));
    EXPECT_EQ(reading.verdict, Verdict::Accepted);
    EXPECT_EQ(reading.siteName, q("Garden"));
    EXPECT_EQ(reading.siteAuthor, q("Ann"));
    EXPECT_THAT(reading.files, ElementsAre(page("/a.htm"), other("/x.gif")));
}

TEST(ReadProjectFile, AcceptsAnEmptyFile)
{
    EXPECT_EQ(readProjectFile(QString()), ProjectReading());
}

TEST(ReadProjectFile, AcceptsAFileOfItsHeadAlone)
{
    EXPECT_EQ(readProjectFile(file("")), ProjectReading());
    EXPECT_EQ(readProjectFile(q("Tagwrighter Site Project File")), ProjectReading());
    EXPECT_EQ(readProjectFile(q("Tagwrighter Site Project File\r\nanything")), ProjectReading());
}

TEST(ReadProjectFile, KnowsTheFirstLineInAnyCase)
{
    for (const char *first : {"tagwrighter site project file", "TAGWRIGHTER SITE PROJECT FILE"})
        EXPECT_EQ(readProjectFile(q(first) + q("\r\n[VERSION]\r\n1.0.0\r\n")).verdict, Verdict::Accepted) << first;
}

TEST(ReadProjectFile, RefusesAnyOtherFirstLine)
{
    for (const char *first : {"\r\n", " Tagwrighter Site Project File", "Tagwrighter Site Project File ", "<html>",
                              "[EDITORFILES]", "Tagwrighter Site Project Files"})
        EXPECT_EQ(readProjectFile(q(first) + q("\r\n[VERSION]\r\n1.0.0\r\n")).verdict, Verdict::Invalid) << first;
}

TEST(ReadProjectFile, TakesNothingFromARefusedFile)
{
    const ProjectReading reading = readProjectFile(q("<html>\r\n[EDITORFILES]\r\n/a.htm\r\n"));
    EXPECT_THAT(reading.files, IsEmpty());
}

TEST(ReadProjectFile, RefusesEveryOtherVersionAsNewer)
{
    for (const char *version : {"1.0.0 ", " 1.0.0", "1.0.1", "0.9.0", "2.0.0", "", "1.0"})
        EXPECT_EQ(readProjectFile(q("Tagwrighter Site Project File\r\n[VERSION]\r\n") + q(version) + q("\r\n")).verdict,
                  Verdict::Newer)
            << version;
}

TEST(ReadProjectFile, DoesNotLookAtTheSecondLine)
{
    EXPECT_EQ(readProjectFile(q("Tagwrighter Site Project File\r\nwhatever\r\n1.0.0\r\n")), ProjectReading());
}

// A list that begins in the second line ends with the third; its tag in lower case is a file before that.
TEST(ReadProjectFile, EndsAListOfTheSecondLineAtTheVersion)
{
    const auto second = [](const char *tag, const char *version) {
        return readProjectFile(q("Tagwrighter Site Project File\r\n") + q(tag) + q("\r\n") + q(version) +
                               q("\r\n/a.htm\r\n"));
    };
    EXPECT_THAT(second("[EDITORFILES]", "1.0.0").files, IsEmpty());
    EXPECT_THAT(second("[editorfiles]", "1.0.0").files, ElementsAre(page("[editorfiles]")));
    EXPECT_THAT(second("[editorfiles]", "9").files, ElementsAre(page("[editorfiles]")));
    EXPECT_EQ(second("[editorfiles]", "9").verdict, Verdict::Newer);
}

TEST(ReadProjectFile, TakesATagInLowerCaseForAFileAsWell)
{
    EXPECT_THAT(readProjectFile(file("[editorfiles]\r\n/a.htm\r\n")).files,
                ElementsAre(page("[editorfiles]"), page("/a.htm")));
    EXPECT_THAT(readProjectFile(file("[OtherFiles]\r\n/a.gif\r\n")).files,
                ElementsAre(other("[OtherFiles]"), other("/a.gif")));
}

TEST(ReadProjectFile, TakesTagsInAnyOrderAndAnyNumberOfTimes)
{
    const ProjectReading reading = readProjectFile(file("[OTHERFILES]\r\n/x.gif\r\n[EDITORFILES]\r\n/a.htm\r\n"
                                                        "[OTHERFILES]\r\n/y.gif\r\n[EDITORFILES]\r\n/b.htm\r\n"));
    EXPECT_THAT(reading.files, ElementsAre(other("/x.gif"), page("/a.htm"), other("/y.gif"), page("/b.htm")));
}

TEST(ReadProjectFile, TakesTheLastOfSeveralNames)
{
    const ProjectReading reading = readProjectFile(file("[SITENAME]\r\nOne\r\n[sitename]\r\nTwo\r\n"));
    EXPECT_EQ(reading.siteName, q("Two"));
}

TEST(ReadProjectFile, TakesOneLineOnlyForAName)
{
    const ProjectReading reading = readProjectFile(file("[SITENAME]\r\n\r\nnot the name\r\n"));
    EXPECT_EQ(reading.siteName, q(""));
    EXPECT_THAT(reading.files, IsEmpty());
}

TEST(ReadProjectFile, PassesOverWhatStandsBehindBegin)
{
    EXPECT_THAT(readProjectFile(file("[BEGIN]\r\n/a.htm\r\n[EDITORFILES]\r\n/b.htm\r\n")).files,
                ElementsAre(page("/b.htm")));
}

// Every other tag ends a list, but is a line of it first.
TEST(ReadProjectFile, TakesAnotherTagInAListForAFileOfIt)
{
    const ProjectReading reading =
        readProjectFile(file("[EDITORFILES]\r\n/a.htm\r\n[SITENAME]\r\nGarden\r\n/b.htm\r\n[BEGIN]\r\n/c.htm\r\n"));
    EXPECT_THAT(reading.files, ElementsAre(page("/a.htm"), page("[SITENAME]")));
    EXPECT_EQ(reading.siteName, q("Garden"));
}

TEST(ReadProjectFile, KeepsANameThatIsATagAndOpensThatSection)
{
    const ProjectReading begun = readProjectFile(file("[SITENAME]\r\n[BEGIN]\r\n/a.htm\r\n"));
    EXPECT_EQ(begun.siteName, q("[BEGIN]"));
    const ProjectReading author = readProjectFile(file("[SITENAME]\r\n[SITEAUTHOR]\r\nAnn\r\n"));
    EXPECT_EQ(author.siteName, q("[SITEAUTHOR]"));
    EXPECT_EQ(author.siteAuthor, q("Ann"));
    // The tag of a list is seen before names are: it is no name.
    const ProjectReading list = readProjectFile(file("[SITENAME]\r\n[EDITORFILES]\r\n/a.htm\r\n"));
    EXPECT_FALSE(list.siteName.has_value());
    EXPECT_THAT(list.files, ElementsAre(page("/a.htm")));
}

TEST(ReadProjectFile, PassesOverBlankLinesInAList)
{
    EXPECT_THAT(readProjectFile(file("[EDITORFILES]\r\n\r\n/a.htm\r\n  \r\n/b.htm \r\n")).files,
                ElementsAre(page("/a.htm"), page("/b.htm ")));
}

TEST(ReadProjectFile, TakesAnyLineEnd)
{
    EXPECT_THAT(readProjectFile(file("[EDITORFILES]\r\n/a.htm\r\n/b.htm").replace(q("\r\n"), q("\n"))).files,
                ElementsAre(page("/a.htm"), page("/b.htm")));
}

TEST(ReadProjectFile, GivesAFileListedTwiceTwice)
{
    EXPECT_THAT(readProjectFile(file("[EDITORFILES]\r\n/a.htm\r\n/a.htm\r\n")).files,
                ElementsAre(page("/a.htm"), page("/a.htm")));
}

TEST(ReadProjectFile, RefusesWhatIsNoText)
{
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i)
        bytes.append(static_cast<char>(i * 37 % 256));
    EXPECT_EQ(readProjectFile(decodeOwnFile(bytes)).verdict, Verdict::Invalid);
    EXPECT_EQ(readProjectFile(decodeOwnFile(QByteArray(1 << 20, '\0'))).verdict, Verdict::Invalid);
}

// Whatever stands behind its head, the names and the files of a project file are lines of it.
TEST(ReadProjectFile, TakesNothingThatIsNoLineOfTheFile)
{
    const QStringList words{q("[EDITORFILES]"), q("[otherFiles]"), q("[SITENAME]"), q("[SiteAuthor]"),
                            q("[BEGIN]"),       q("/a.htm"),       q(""),           q("  "),
                            q("[VERSION]"),     q("x\ty")};
    std::mt19937 random(3);
    for (int run = 0; run < 500; ++run) {
        QStringList lines;
        for (auto i = random() % 20; i > 0; --i)
            lines.append(words[static_cast<qsizetype>(random() % static_cast<std::size_t>(words.size()))]);
        const ProjectReading reading = readProjectFile(file("") + lines.join(q("\n")));
        ASSERT_EQ(reading.verdict, Verdict::Accepted);
        EXPECT_TRUE(lines.contains(reading.siteName.value_or(lines.value(0))) || lines.isEmpty());
        ASSERT_LE(reading.files.size(), lines.size());
        for (const ProjectFileLine &each : reading.files) {
            EXPECT_TRUE(lines.contains(each.path));
            EXPECT_FALSE(each.path.trimmed().isEmpty());
            EXPECT_NE(each.path, each.isEditorFile ? q("[EDITORFILES]") : q("[OTHERFILES]"));
        }
    }
}

TEST(ReadProjectFile, GivesBackWhatWasWritten)
{
    const ProjectContents contents{.siteName = q("Gärten – 庭"),
                                   .siteAuthor = q("Zoë"),
                                   .editorFiles = {q("/s/ä b.htm"), q("/s/日本.htm")},
                                   .otherFiles = {q("/s/€.gif")}};
    const ProjectReading reading = readProjectFile(decodeOwnFile(encodeOwnFile(projectFileText(contents))));
    EXPECT_EQ(reading.siteName, contents.siteName);
    EXPECT_EQ(reading.siteAuthor, contents.siteAuthor);
    EXPECT_THAT(reading.files, ElementsAre(page("/s/ä b.htm"), page("/s/日本.htm"), other("/s/€.gif")));
}
} // namespace
