#include "codeknowledge/codeOutline.h"

#include "codeknowledge/codeBranch.h"

#include <QFile>
#include <gtest/gtest.h>

namespace
{
/// The lines with "+" for the byte 187, each ended by CR LF.
QByteArray file(const char *lines)
{
    return QByteArray(lines).replace('+', '\xBB').replace("\n", "\r\n");
}

quint64 digestOf(QByteArrayView bytes)
{
    FileDigest digest;
    digest.add(bytes);
    return digest.value();
}

QByteArray shipped(const char *name)
{
    QFile data(QStringLiteral(TEST_SOURCE_DIR "/data/") + QLatin1String(name));
    return data.open(QIODevice::ReadOnly) ? data.readAll() : QByteArray();
}

TEST(FileDigest, IsTheSameInPieces)
{
    const QByteArray bytes("an element, an attribute, a value");
    FileDigest pieces;
    pieces.add(bytes.first(8));
    pieces.add(bytes.sliced(8, 16));
    pieces.add(bytes.sliced(24));
    EXPECT_EQ(pieces.value(), digestOf(bytes));
}

TEST(FileDigest, IsAnotherOneForEveryBitThatDiffers)
{
    QByteArray bytes("an element, an attribute");
    const quint64 before = digestOf(bytes);
    for (qsizetype place = 0; place < bytes.size(); ++place)
        for (int bit = 0; bit < 8; ++bit) {
            bytes[place] = static_cast<char>(bytes[place] ^ (1 << bit));
            EXPECT_NE(digestOf(bytes), before) << place << ' ' << bit;
            bytes[place] = static_cast<char>(bytes[place] ^ (1 << bit));
        }
}

TEST(FileDigest, KnowsTheOrder)
{
    EXPECT_NE(digestOf("one-----two-----"), digestOf("two-----one-----"));
}

TEST(CodeOutline, HasWhatStandsRightUnderTheRoot)
{
    const QByteArray bytes = file("+p\n++align=\n+++left\n+++right\n++id=\n+p>x\n++y=\n+q\n");
    const QByteArray text = CodeOutline::written(CodeBranch::ofHtml(bytes), bytes);
    const auto outline = CodeOutline::read(text);
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->fileSize(), bytes.size());
    EXPECT_EQ(outline->fileDigest(), digestOf(bytes));
    EXPECT_EQ(outline->size(), 9);
    ASSERT_EQ(outline->count(), 2);
    EXPECT_EQ(outline->row(0).number, 1);
    EXPECT_EQ(outline->row(0).children, 3) << "x, align and id";
    EXPECT_EQ(outline->line(0), QStringLiteral("\u00BBp"));
    EXPECT_EQ(outline->row(1).number, 8);
    EXPECT_EQ(outline->row(1).children, 0);
    EXPECT_EQ(outline->find(1), 0);
    EXPECT_EQ(outline->find(8), 1);
    for (const int number : {-1, 0, 2, 6, 7, 9})
        EXPECT_EQ(outline->find(number), std::nullopt) << number;
}

TEST(CodeOutline, IsNotReadFromAnythingElse)
{
    ASSERT_TRUE(CodeOutline::read("10 ab 3 1\n1 1 +p\n"));
    for (const char *text :
         {"", "10 ab 3\n1 1 +p\n", "x ab 3 1\n1 1 +p\n", "10 xy 3 1\n1 1 +p\n", "10 ab 3 2\n1 1 +p\n",
          "10 ab 3 1\n1 1 +p", "10 ab 3 1\n1 +p\n", "10 ab 3 1\n0 1 +p\n", "10 ab 3 1\n3 1 +p\n",
          "10 ab 3 1\n1 -1 +p\n", "10 ab 3 -1\n", "10 ab 3 3\n1 1 +p\n2 1 +q\n3 1 +r\n", "10 ab 4 2\n2 1 +p\n1 1 +q\n"})
        EXPECT_FALSE(CodeOutline::read(text)) << text;
}

TEST(CodeOutline, OfTheShippedFilesIsInTheProgram)
{
    for (const char *name : {"Html.tcb", "Css.tcb"}) {
        const QByteArray bytes = shipped(name);
        const auto outline = CodeOutline::shipped(QLatin1String(name));
        ASSERT_TRUE(outline) << name;
        EXPECT_EQ(outline->fileSize(), bytes.size());
        EXPECT_EQ(outline->fileDigest(), digestOf(bytes));
    }
    EXPECT_FALSE(CodeOutline::shipped(QStringLiteral("Other.tcb")));
}
} // namespace
