#include "codeknowledge/codeBranch.h"

#include <QStringList>
#include <algorithm>
#include <gtest/gtest.h>

namespace
{
/// The lines with "+" for the byte 187 and "-" for 171, each ended by CR LF.
QByteArray file(const char *lines)
{
    return QByteArray(lines).replace('+', '\xBB').replace('-', '\xAB').replace("\n", "\r\n");
}

QStringList told(const CodeBranch &branch)
{
    QStringList rows;
    for (int number = 0; number < branch.size(); ++number) {
        const TreeNode node = branch.node(number);
        rows.append(QStringLiteral("%1|%2|%3|%4").arg(node.text, node.key, node.imageKey).arg(node.parent));
    }
    return rows;
}

/// A fault in how the nodes hang together; empty if the children of each are those that name it as their parent, in
/// order, elements in front.
QString faultIn(const CodeBranch &branch)
{
    std::vector<std::vector<int>> children(static_cast<size_t>(branch.size()));
    for (int number = 1; number < branch.size(); ++number)
        children[static_cast<size_t>(branch.parentOf(number))].push_back(number);
    for (int number = 0; number < branch.size(); ++number) {
        std::vector<int> &expected = children[static_cast<size_t>(number)];
        std::stable_partition(expected.begin(), expected.end(), [&](int child) { return branch.isElement(child); });
        if (branch.childCount(number) != static_cast<int>(expected.size()))
            return QStringLiteral("%1 has %2 children").arg(number).arg(branch.childCount(number));
        for (int row = 0; row < branch.childCount(number); ++row)
            if (branch.child(number, row) != expected[static_cast<size_t>(row)] ||
                branch.rowOf(branch.child(number, row)) != row)
                return QStringLiteral("child %1 of %2").arg(row).arg(number);
    }
    return {};
}

const QString htmlRoot = QStringLiteral("HyperText Markup Language|html|ImgNode1|-1");
const QString cssRoot = QStringLiteral("Cascading Style Sheets|css|ImgNodeCSS1|-1");

TEST(HtmlBranch, IsMadeLineByLine)
{
    const CodeBranch branch =
        CodeBranch::ofHtml(file("+img\n++src=URL\n++alt=\n++-ismap\n++-align=\n++-left\n+++top\n-font\n"));
    //                             img   src=       alt=    value     align= depth 3  depth 3 element
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(told(branch),
              (QStringList{htmlRoot, QStringLiteral("img||ImgNode2|0"), QStringLiteral("src=||ImgNode3|1"),
                           QStringLiteral("alt=||ImgNode3|1"), QStringLiteral("ismap||ImgDepr|3"),
                           QStringLiteral("align=||ImgDepr|3"), QStringLiteral("left||ImgDepr|3"),
                           QStringLiteral("top||ImgNode4|3"), QStringLiteral("font||ImgDepr|0")}));
    EXPECT_EQ(faultIn(branch), QString());
}

// The lines of drawings stand anywhere behind that of the element that enters them, which may be told of before others.
TEST(HtmlBranch, PutsElementsOfOtherLanguagesUnderTheirEntry)
{
    const CodeBranch branch = CodeBranch::ofHtml(file(
        "+math\n++display=\n+svg\n++width=\n+++100\n+svg>circle\n++r=Length\n+++1\n+math>mi\n-tt\n++x=\n-svg>old\n"));
    //    1      2           3     4         5      6            7           8     9         10   11      12
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(told(branch),
              (QStringList{htmlRoot, QStringLiteral("math||ImgNode2|0"), QStringLiteral("display=||ImgNode3|1"),
                           QStringLiteral("svg||ImgNode2|0"), QStringLiteral("width=||ImgNode3|3"),
                           QStringLiteral("100||ImgNode4|4"), QStringLiteral("circle||ImgNode2|3"),
                           QStringLiteral("r=||ImgNode3|6"), QStringLiteral("1||ImgNode4|7"),
                           QStringLiteral("mi||ImgNode2|1"), QStringLiteral("tt||ImgDepr|0"),
                           QStringLiteral("x=||ImgNode3|10"), QStringLiteral("old||ImgDepr|3")}));
    EXPECT_EQ(faultIn(branch), QString());
    EXPECT_EQ(branch.childCount(0), 3);
    EXPECT_EQ(branch.child(3, 0), 6) << "circle, in front of the attribute";
    EXPECT_EQ(branch.child(3, 1), 12);
    EXPECT_EQ(branch.child(3, 2), 4);
    EXPECT_EQ(branch.attributesOf(3), std::vector<int>{4});
    EXPECT_EQ(branch.attributesOf(6), std::vector<int>{7});
    std::vector<int> elements(static_cast<size_t>(branch.elementCount()));
    std::generate(elements.begin(), elements.end(), [&branch, row = 0]() mutable { return branch.element(row++); });
    EXPECT_EQ(elements, (std::vector<int>{1, 3, 6, 9, 10, 12}));
}

TEST(HtmlBranch, KeepsANameWholeWhoseEntryItDoesNotKnow)
{
    const CodeBranch branch = CodeBranch::ofHtml(file("+a\n+b>c\n+>d\n+a>\n+a>e>f\n+e>g\n"));
    EXPECT_EQ(told(branch), (QStringList{htmlRoot, QStringLiteral("a||ImgNode2|0"), QStringLiteral("b>c||ImgNode2|0"),
                                         QStringLiteral(">d||ImgNode2|0"), QStringLiteral("a>||ImgNode2|0"),
                                         QStringLiteral("e>f||ImgNode2|1"), QStringLiteral("e>g||ImgNode2|0")}));
    EXPECT_EQ(faultIn(branch), QString());
}

TEST(HtmlBranch, TakesTheLastLineWithoutItsEnd)
{
    const CodeBranch branch = CodeBranch::ofHtml(file("+td\n++width=number\n+-nowrap\n+-bgcolor=colour"));
    EXPECT_EQ(told(branch),
              (QStringList{htmlRoot, QStringLiteral("td||ImgNode2|0"), QStringLiteral("width=||ImgNode3|1"),
                           QStringLiteral("nowrap||ImgDepr|1"), QStringLiteral("bgcolor=||ImgDepr|1")}));
}

TEST(HtmlBranch, OfAnEmptyFileIsTheRootAlone)
{
    const CodeBranch branch = CodeBranch::ofHtml({});
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(told(branch), QStringList{htmlRoot});
    EXPECT_EQ(branch.childCount(0), 0);
    EXPECT_EQ(CodeBranch().size(), 0) << "of no file";
}

TEST(HtmlBranch, EndsAtAValueBehindAnElement)
{
    const CodeBranch branch = CodeBranch::ofHtml(file("+a\n++href=\n+b\n+++value\n+c\n"));
    EXPECT_FALSE(branch.isComplete());
    EXPECT_EQ(told(branch), (QStringList{htmlRoot, QStringLiteral("a||ImgNode2|0"), QStringLiteral("href=||ImgNode3|1"),
                                         QStringLiteral("b||ImgNode2|0")}));
    EXPECT_EQ(faultIn(branch), QString());
}

TEST(HtmlBranch, EndsAtABlankLineBehindAnElementAndTakesOneBehindAnAttribute)
{
    EXPECT_FALSE(CodeBranch::ofHtml(file("+a\n\n++href=\n")).isComplete());
    const CodeBranch branch = CodeBranch::ofHtml(file("+a\n++href=\n\n"));
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(told(branch).last(), QStringLiteral("||ImgNode4|2"));
}

TEST(HtmlBranch, EndsAtAnAttributeInFrontOfAllElements)
{
    const CodeBranch branch = CodeBranch::ofHtml(file("++href=\n+a\n"));
    EXPECT_FALSE(branch.isComplete());
    EXPECT_EQ(told(branch), QStringList{htmlRoot});
}

TEST(HtmlBranch, CountsMarksInsideALine)
{
    EXPECT_EQ(told(CodeBranch::ofHtml(file("+a\nti+tle+=Text\nl-e+f+t\n"))),
              (QStringList{htmlRoot, QStringLiteral("a||ImgNode2|0"), QStringLiteral("title=||ImgNode3|1"),
                           QStringLiteral("left||ImgDepr|2")}));
}

TEST(HtmlBranch, ReadsEveryLineEndAndEveryEncodingOfOwnFiles)
{
    const QStringList expected{htmlRoot, QStringLiteral("a||ImgNode2|0"), QStringLiteral("title=||ImgNode3|1"),
                               QStringLiteral("\u00E9\u20AC||ImgNode4|2"), QStringLiteral("b||ImgDepr|0")};
    const char *ends[] = {"\r\n", "\n", "\r"};
    for (const char *end : ends) {
        const QByteArray plain = QByteArray("\xBB"
                                            "a\n\xBB\xBB"
                                            "title=\n\xBB\xBB\xBB\xE9\x80\n\xAB"
                                            "b\n")
                                     .replace("\n", end);
        EXPECT_EQ(told(CodeBranch::ofHtml(plain)), expected);
        const QByteArray utf8 =
            QString(QStringLiteral("\u00BBa\n\u00BB\u00BBtitle=\n\u00BB\u00BB\u00BB\u00E9\u20AC\n\u00ABb\n"))
                .toUtf8()
                .replace("\n", end);
        EXPECT_EQ(told(CodeBranch::ofHtml(utf8)), expected);
        EXPECT_EQ(told(CodeBranch::ofHtml("\xEF\xBB\xBF" + utf8)), expected);
    }
    const QByteArray css = QStringLiteral("\u00BBcolor\n\u00BB\u00BBred\n\u00BBfl\u0141t\n").toUtf8();
    EXPECT_EQ(told(CodeBranch::ofCss(css)).last(), QStringLiteral("fl\u0141t:|fl\u0141t|ImgNodeCSSProperty|0"));
}

TEST(CodeBranch, HangsTogetherWhateverTheOrderOfItsLines)
{
    uint state = 7;
    const auto random = [&state](uint limit) { return (state = state * 1103515245U + 12345U) / 65536U % limit; };
    for (int round = 0; round < 200; ++round) {
        QByteArray html = "\xBB"
                          "e\r\n\xBB\xBB"
                          "a\r\n";
        QByteArray css = "\xBB"
                         "first\r\n";
        for (uint line = 0, lines = random(30); line < lines; ++line) {
            html += QByteArray("\xBB\xBB\xBB\xBB").first(random(5)) + "x\r\n";
            css += random(2) ? QByteArray("\xBB\xBBv\r\n") : "\xBB" + QByteArray::number(line) + "\r\n";
        }
        const CodeBranch htmlBranch = CodeBranch::ofHtml(html);
        ASSERT_EQ(faultIn(htmlBranch), QString()) << html.toStdString();
        ASSERT_TRUE(htmlBranch.isComplete() || htmlBranch.size() > 3) << html.toStdString();
        ASSERT_EQ(faultIn(CodeBranch::ofCss(css)), QString()) << css.toStdString();
    }
}

TEST(CssBranch, HasNamesAsKeysAndAColonBehindThem)
{
    const CodeBranch branch = CodeBranch::ofCss(file("+color\n++red\n++inherit\n+float\n++left"));
    EXPECT_TRUE(branch.isComplete());
    EXPECT_EQ(
        told(branch),
        (QStringList{cssRoot, QStringLiteral("color:|color|ImgNodeCSSProperty|0"),
                     QStringLiteral("red||ImgNodeCSSValue|1"), QStringLiteral("inherit||ImgNodeCSSValue|1"),
                     QStringLiteral("float:|float|ImgNodeCSSProperty|0"), QStringLiteral("left||ImgNodeCSSValue|4")}));
}

TEST(CssBranch, EndsAtAKeyThatIsInTheTreeAlready)
{
    for (const char *name : {"color", "html", "css"}) {
        const CodeBranch branch = CodeBranch::ofCss(file("+color\n++red\n+") + QByteArray(name) + file("\n++blue\n"));
        EXPECT_FALSE(branch.isComplete()) << name;
        EXPECT_EQ(branch.size(), 3) << name;
    }
    EXPECT_TRUE(CodeBranch::ofCss(file("+color\n+Color\n")).isComplete()) << "keys differ by their case";
}

TEST(CssBranch, EndsAtAValueWithoutAProperty)
{
    EXPECT_EQ(told(CodeBranch::ofCss(file("++red\n+color\n"))), QStringList{cssRoot});
    EXPECT_FALSE(CodeBranch::ofCss(file("++red\n+color\n")).isComplete());
    // A property without a name has no key that a value could be put under.
    const CodeBranch nameless = CodeBranch::ofCss(file("+color\n\n\n++red\n"));
    EXPECT_FALSE(nameless.isComplete());
    EXPECT_EQ(nameless.size(), 4);
    EXPECT_EQ(told(nameless).last(), QStringLiteral(":||ImgNodeCSSProperty|0"));
}
} // namespace
