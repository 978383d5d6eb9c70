#include "codeknowledge/codeEntry.h"

#include "common/encodings.h"

#include <QDirIterator>
#include <QFile>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

struct Row {
    const char *text;
    CodeEntry entry;
};

TEST(CodeEntry, IsWhatStandsBeforeAndBehindTheMarker)
{
    const Row rows[] = {
        {"<b>\r\n[-\\description-/]\r\nBold\r\n", {q("<b>\r\n"), q("Bold\r\n")}},
        {"<b>\r\n[-\\DESCRIPTION-/]\r\nTwo\r\nlines\r\n", {q("<b>\r\n"), q("Two\r\nlines\r\n")}},
        {"[-\\description-/]\r\n", {q(""), q("")}},
        {"a[-\\description-/]bcd", {q("a"), q("d")}}, // two characters behind the marker are its line end
        {"a[-\\description-/]", {q("a"), q("")}},
        {"no marker", {}},
        {"", {}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(readCodeEntry(q(row.text)), row.entry) << row.text;
}

TEST(CodeEntry, IsWrittenWithAMarkerBetweenLineEnds)
{
    EXPECT_EQ(codeEntryText(q("<b>\r\n</b>"), q("Bold")), q("<b>\r\n</b>\r\n[-\\description-/]\r\nBold\r\n"));
    EXPECT_EQ(codeEntryText(QString(), QString()), q("\r\n[-\\description-/]\r\n\r\n"));
    EXPECT_EQ(readCodeEntry(codeEntryText(q("x"), q("y"))), (CodeEntry{q("x\r\n"), q("y\r\n")}));
}

TEST(CodeEntry, TakesNoTitleThatLeadsOutOfItsFolder)
{
    for (const char *title :
         {"", "a/b", "..\\a", "../a", "a:b", "a*", "a?", "a\"b", "a<b", "a>b", "a|b", "a\nb", "a\tb"})
        EXPECT_FALSE(isValidEntryTitle(q(title))) << title;
    EXPECT_FALSE(isValidEntryTitle(QString(QChar(0))));
    for (const char *title : {"a", "A list", "one.two", "..", "äöü", "100 %", "(a)"})
        EXPECT_TRUE(isValidEntryTitle(q(title))) << title;
}

TEST(CodeEntry, HasItsTitleAsTheNameOfItsFile)
{
    EXPECT_EQ(entryFileName(q("one.two")), q("one.two.cde"));
    EXPECT_EQ(entryTitle(q("one.two.cde")), q("one.two"));
    EXPECT_TRUE(isEntryFile(q("A.CDE")));
    EXPECT_FALSE(isEntryFile(q("a.cde.txt")));
    EXPECT_FALSE(isEntryFile(q("cde")));
}

TEST(CodeEntry, OfTheLibraryThatComesAlongSaysWhatItIs)
{
    QDirIterator walk(q(TEST_SOURCE_DIR "/data/CodeLibrary"), QDir::Files, QDirIterator::Subdirectories);
    int entries = 0;
    while (walk.hasNext()) {
        const QString path = walk.next();
        QFile file(path);
        ASSERT_TRUE(isEntryFile(path) && file.open(QIODevice::ReadOnly)) << path.toStdString();
        const QString text = decodeOwnFile(file.readAll());
        const CodeEntry entry = readCodeEntry(text);
        EXPECT_FALSE(entry.code.trimmed().isEmpty()) << path.toStdString();
        EXPECT_FALSE(entry.description.trimmed().isEmpty()) << path.toStdString();
        EXPECT_EQ(codeEntryText(entry.code.chopped(2), entry.description.chopped(2)), text) << path.toStdString();
        ++entries;
    }
    EXPECT_GT(entries, 5);
}
} // namespace
