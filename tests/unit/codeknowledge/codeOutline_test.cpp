#include "codeknowledge/codeOutline.h"

#include "codeknowledge/codeBranch.h"
#include "common/quickDigest.h"

#include <QFile>
#include <gtest/gtest.h>

namespace
{
/// The lines with "+" for the byte 187, each ended by CR LF.
QByteArray file(const char *lines)
{
    return QByteArray(lines).replace('+', '\xBB').replace("\n", "\r\n");
}

QByteArray shipped(const char *name)
{
    QFile data(QStringLiteral(TEST_SOURCE_DIR "/data/") + QLatin1String(name));
    return data.open(QIODevice::ReadOnly) ? data.readAll() : QByteArray();
}

TEST(CodeOutline, HasWhatStandsRightUnderTheRoot)
{
    const QByteArray bytes = file("+p\n++align=\n+++left\n+++right\n++id=\n+p>x\n++y=\n+q\n");
    const QByteArray text = CodeOutline::written(CodeBranch::ofHtml(bytes), bytes);
    const auto outline = CodeOutline::read(text);
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->fileSize(), bytes.size());
    EXPECT_EQ(outline->fileDigest(), QuickDigest::of(bytes));
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
        EXPECT_EQ(outline->fileDigest(), QuickDigest::of(bytes));
    }
    EXPECT_FALSE(CodeOutline::shipped(QStringLiteral("Other.tcb")));
}
} // namespace
