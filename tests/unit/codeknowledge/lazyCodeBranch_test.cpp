#include "codeknowledge/lazyCodeBranch.h"

#include <QByteArrayList>
#include <gtest/gtest.h>

namespace
{
/// The lines with "+" for the byte 187 and "-" for 171, each ended by CR LF.
QByteArray file(const char *lines)
{
    return QByteArray(lines).replace('+', '\xBB').replace('-', '\xAB').replace("\n", "\r\n");
}

const QByteArray html = file("+p\n++align=\n+++left\n-u\n++id=\n+p>x\n++y=\n+p\n");
const QByteArray css = file("+color\n++red\n++blue\n+float\n++left\n");
const QByteArray emptyEnd = file("+color\n++red\n\n\n"); // two properties without a name

class LazyCodeBranchTest : public testing::Test
{
protected:
    static CodeBranch whole(const QByteArray &bytes) { return &bytes == &html ? ofHtml(bytes) : ofCss(bytes); }
    static CodeBranch ofCss(const QByteArray &bytes) { return CodeBranch::ofCss(bytes); }
    static CodeBranch ofHtml(const QByteArray &bytes) { return CodeBranch::ofHtml(bytes); }

    /// A branch of those bytes; when it is read it finds the others.
    LazyCodeBranch lazy(const QByteArray &bytes, const QByteArray &later)
    {
        m_texts.append(CodeOutline::written(whole(bytes), bytes));
        const bool isHtml = &bytes == &html;
        return {isHtml, *CodeOutline::read(m_texts.constLast()), [this, isHtml, later] {
                    ++readings;
                    return isHtml ? ofHtml(later) : ofCss(later);
                }};
    }

    static void expectSameChildren(const LazyCodeBranch &branch, const CodeBranch &expected, int number)
    {
        ASSERT_EQ(branch.childCount(number), expected.childCount(number)) << number;
        for (int row = 0; row < expected.childCount(number); ++row)
            EXPECT_EQ(branch.child(number, row), expected.child(number, row)) << number << ' ' << row;
    }

    static void expectSame(const LazyCodeBranch &branch, const CodeBranch &expected)
    {
        ASSERT_EQ(branch.size(), expected.size());
        EXPECT_EQ(branch.isComplete(), expected.isComplete());
        for (int number = 0; number < expected.size(); ++number) {
            EXPECT_EQ(branch.node(number), expected.node(number)) << number;
            EXPECT_EQ(branch.parentOf(number), expected.parentOf(number)) << number;
            EXPECT_EQ(branch.rowOf(number), expected.rowOf(number)) << number;
            EXPECT_EQ(branch.isElement(number), expected.isElement(number)) << number;
            expectSameChildren(branch, expected, number);
        }
    }

    int readings = 0;

private:
    QByteArrayList m_texts; ///< the outlines are views of them
};

TEST_F(LazyCodeBranchTest, IsAsTheWholeOne)
{
    expectSame(lazy(html, html), ofHtml(html));
    expectSame(lazy(css, css), ofCss(css));
    EXPECT_EQ(readings, 2);
    expectSame(ofHtml(html), ofHtml(html));
    expectSame(ofCss(css), ofCss(css));
    expectSame(LazyCodeBranch(), CodeBranch());
}

TEST_F(LazyCodeBranchTest, IsNotReadForItsFirstRows)
{
    const LazyCodeBranch branch = lazy(html, html);
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(branch.size(), 9);
    ASSERT_EQ(branch.childCount(0), 3);
    for (int row = 0; row < 3; ++row) {
        const int number = branch.child(0, row);
        EXPECT_EQ(branch.rowOf(number), row);
        EXPECT_EQ(branch.parentOf(number), 0);
        EXPECT_TRUE(branch.isElement(number));
        EXPECT_EQ(branch.node(number), ofHtml(html).node(number));
        EXPECT_EQ(branch.childCount(number), ofHtml(html).childCount(number));
    }
    EXPECT_EQ(branch.node(0), ofHtml(html).node(0));
    EXPECT_EQ(readings, 0);
    EXPECT_EQ(branch.node(2).text, QStringLiteral("align="));
    EXPECT_EQ(branch.node(3).text, QStringLiteral("left"));
    EXPECT_EQ(readings, 1);
}

TEST_F(LazyCodeBranchTest, KeepsItsNodesWhereTheFileHasBecomeAnotherOne)
{
    const QByteArray others[] = {{},
                                 file("+p\n"),
                                 file("++align=\n"),
                                 html + file("+q\n++z=\n"),
                                 file("+1\n+2\n+3\n+4\n+5\n+6\n+7\n+8\n"), // as many nodes as the first has
                                 file("+p\n+q\n++align=\n+u\n++id=\n++x\n++y=\n++z\n"),
                                 file("+1\n+2\n+3\n+4\n+5\n"),
                                 file("+1\n+2\n+3\n+4\n")};
    for (const QByteArray *bytes : {&html, &css, &emptyEnd})
        for (const QByteArray &other : others) {
            const LazyCodeBranch branch = lazy(*bytes, other);
            const CodeBranch expected = whole(*bytes);
            ASSERT_EQ(branch.whole().size(), expected.size());
            int below = 0;
            for (int number = 0; number < expected.size(); ++number) {
                if (expected.parentOf(number) <= 0)
                    EXPECT_EQ(branch.node(number), expected.node(number));
                else
                    EXPECT_EQ(branch.node(number).text, QString());
                EXPECT_LT(branch.parentOf(number), number);
                below += branch.childCount(number);
                for (int row = 0; row < branch.childCount(number); ++row)
                    EXPECT_EQ(branch.rowOf(branch.child(number, row)), row);
            }
            EXPECT_EQ(below, expected.size() - 1);
        }
}
} // namespace
