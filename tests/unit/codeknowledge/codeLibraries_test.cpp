#include "codeknowledge/codeLibraries.h"

#include "codeknowledge/codeInsertion.h"
#include "storage/localFileSystem.h"
#include "support/fakes.h"
#include "widgets/nodeTreeModel.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <malloc.h>

namespace
{
class CodeLibrariesTest : public testing::Test
{
protected:
    /// A file of Windows-1252 text, "+" standing for its mark (187) and "-" for that of what is deprecated (171).
    void put(const char *name, QByteArray lines)
    {
        lines.replace('+', '\xBB').replace('-', '\xAB').replace("\n", "\r\n");
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }
    void load() { codes.LoadCodeLibraries(files, folder.path()); }
    std::optional<QString> chosen(int node, std::optional<QChar> before = u'x')
    {
        return chosenCode(codes, node, before);
    }

    /// The rows of lstCodeAssistantSyntax.
    QStringList syntax() const
    {
        QStringList rows;
        for (int row = 0; row < codes.syntaxCount(); ++row)
            rows << codes.lstCodeAssistantSyntax(row);
        return rows;
    }

    QTemporaryDir folder;
    LocalFileSystem files;
    CodeLibraries codes;
};

TEST_F(CodeLibrariesTest, JoinsBothFilesInOneTree)
{
    put("Html.tcb", "+p\n++align=\n+++left\n-u\n");
    put("Css.tcb", "+color\n++red\n");
    load();
    EXPECT_TRUE(codes.isComplete());
    EXPECT_EQ(codes.HtmlCodeNodeCount(), 5) << "the root and four lines";
    ASSERT_EQ(codes.nodeCount(), 8);
    EXPECT_EQ(codes.node(4), (TreeNode{QStringLiteral("u"), {}, QStringLiteral("ImgDepr"), 0}));
    EXPECT_EQ(codes.node(5).key, QStringLiteral("css"));
    EXPECT_EQ(codes.node(5).parent, -1);
    EXPECT_EQ(codes.node(6),
              (TreeNode{QStringLiteral("color:"), QStringLiteral("color"), QStringLiteral("ImgNodeCSSProperty"), 5}));
    EXPECT_EQ(codes.node(7).parent, 6);
    EXPECT_EQ(codes.tree()->size(), 8);
    ASSERT_EQ(codes.elementNodes()->size(), 2);
    EXPECT_EQ(codes.elementNodes()->at(0),
              (TreeNode{QStringLiteral("<p"), QStringLiteral("e<p"), QStringLiteral("Element"), -1}));
    EXPECT_EQ(codes.elementNodes()->at(1),
              (TreeNode{QStringLiteral("<u"), QStringLiteral("d<u"), QStringLiteral("ElementDepr"), -1}));
}

TEST_F(CodeLibrariesTest, ReadsTheCodePageOfTheFiles)
{
    put("Html.tcb", "+a\n++title=caf\xE9 \x80\n");
    put("Css.tcb", "");
    load();
    EXPECT_EQ(syntax(), QStringList{QStringLiteral("<a title=[caf\u00E9 \u20AC]>")});
}

TEST_F(CodeLibrariesTest, ReadsNothingWithoutTheHtmlFile)
{
    put("Css.tcb", "+color\n");
    load();
    EXPECT_EQ(codes.nodeCount(), 0);
    EXPECT_EQ(codes.HtmlCodeNodeCount(), 0);
    EXPECT_FALSE(codes.isComplete());
    EXPECT_EQ(codes.elements(), CodeElements());
}

TEST_F(CodeLibrariesTest, KeepsTheHtmlBranchWithoutTheCssFile)
{
    put("Html.tcb", "+p\n");
    load();
    EXPECT_EQ(codes.nodeCount(), 2);
    EXPECT_EQ(codes.HtmlCodeNodeCount(), 2);
    EXPECT_FALSE(codes.isComplete());
}

TEST_F(CodeLibrariesTest, EndsAtALineWithoutAPlaceInTheHtmlFile)
{
    put("Html.tcb", "+p\n+b\n+++left\n+i\n");
    put("Css.tcb", "+color\n");
    load();
    EXPECT_EQ(codes.nodeCount(), 3);
    EXPECT_EQ(codes.HtmlCodeNodeCount(), 0) << "it is told once the file is read";
    EXPECT_FALSE(codes.isComplete());
    EXPECT_EQ(codes.elementNodes()->size(), 2);
    EXPECT_EQ(syntax(), QStringList{QStringLiteral("<p>")});
}

TEST_F(CodeLibrariesTest, EndsAtALineWithoutAPlaceInTheCssFile)
{
    put("Html.tcb", "+p\n");
    put("Css.tcb", "+color\n+color\n+float\n");
    load();
    EXPECT_EQ(codes.nodeCount(), 4);
    EXPECT_EQ(codes.HtmlCodeNodeCount(), 2);
    EXPECT_FALSE(codes.isComplete());
}

TEST_F(CodeLibrariesTest, GivesAnElementThatComesAgainNoSecondNodeInTheAssistant)
{
    put("Html.tcb", "+p\n+P\n-p\n+q\n");
    put("Css.tcb", "");
    load();
    EXPECT_EQ(codes.elements().lstCodeAssistantElements.size(), 4);
    EXPECT_EQ(codes.elementNodes()->size(), 3) << "its key is in the tree; a deprecated one has another";
}

TEST_F(CodeLibrariesTest, TellsOfEachElementInThreeLists)
{
    put("Html.tcb", "+img\n++src=URL\n++alt=\n+-border\n+++top\n-font\n+td\n++width=a=b\n");
    put("Css.tcb", "");
    load();
    EXPECT_EQ(codes.elements().lstCodeAssistantElements,
              (QStringList{QStringLiteral("<img"), QStringLiteral("<font"), QStringLiteral("<td")}));
    EXPECT_EQ(codes.elements().lstCodeAssistantElementsFull,
              (QStringList{QStringLiteral("e<img"), QStringLiteral("d<font"), QStringLiteral("e<td")}));
    EXPECT_EQ(syntax(), (QStringList{QStringLiteral("<img src=[URL] alt= border>"), QStringLiteral("<font>"),
                                     QStringLiteral("<td width=[a=b]>")}));
    EXPECT_EQ(codes.lstCodeAssistantSyntax(3), QString());
    EXPECT_EQ(codes.lstCodeAssistantSyntax(-1), QString());
}

TEST_F(CodeLibrariesTest, LeavesOutTheSyntaxOfTheElementThatTheReadingEndedIn)
{
    put("Html.tcb", "+a\n++href=\n+b\n+++value\n+c\n");
    load();
    EXPECT_EQ(codes.elements().lstCodeAssistantElements, (QStringList{QStringLiteral("<a"), QStringLiteral("<b")}));
    EXPECT_EQ(syntax(), QStringList{QStringLiteral("<a href=>")});
}

TEST_F(CodeLibrariesTest, ReadsItsFilesWhenItIsFirstAsked)
{
    load(); // a start does not wait for them
    put("Html.tcb", "+p\n");
    put("Css.tcb", "+color\n");
    EXPECT_EQ(codes.nodeCount(), 4);
    put("Html.tcb", "+p\n+b\n");
    EXPECT_EQ(codes.nodeCount(), 4) << "and once";
    EXPECT_EQ(codes.elements().lstCodeAssistantElements.size(), 1);
}

TEST_F(CodeLibrariesTest, ShowsItsNodesInAView)
{
    put("Html.tcb", "+p\n++align=\n+++left\n-u\n");
    put("Css.tcb", "+color\n++red\n+float\n");
    load();
    const auto tree = codes.tree();
    ASSERT_EQ(tree->rowCount(), 2);
    EXPECT_EQ(tree->find(QStringLiteral("html")), 0);
    EXPECT_EQ(tree->find(QStringLiteral("css")), 5);
    EXPECT_EQ(tree->find(QStringLiteral("float")), 8);
    EXPECT_EQ(tree->find(QStringLiteral("p")), std::nullopt);
    EXPECT_EQ(tree->find({}), std::nullopt);
    for (int node = 0; node < tree->size(); ++node) {
        const QModelIndex index = tree->indexOf(node);
        EXPECT_EQ(NodeTreeModel::nodeOf(index), node);
        EXPECT_EQ(NodeTreeModel::nodeOf(index.parent()), tree->at(node).parent);
        EXPECT_EQ(tree->index(index.row(), 0, index.parent()), index);
        EXPECT_EQ(index.data().toString(), tree->at(node).text);
    }
    EXPECT_FALSE(tree->index(2, 0).isValid());
}

TEST_F(CodeLibrariesTest, KeepsTheShippedFilesInLittleMemory)
{
    codes.LoadCodeLibraries(files, QStringLiteral(TEST_SOURCE_DIR "/data"));
    const auto before = mallinfo2().uordblks + mallinfo2().hblkhd;
    ASSERT_GT(codes.nodeCount(), 60'000);
    EXPECT_EQ(codes.node(codes.nodeCount() - 1).imageKey, QStringLiteral("ImgNodeCSSValue"));
    EXPECT_FALSE(codes.elements().htmlNames.isEmpty());
    const auto taken = mallinfo2().uordblks + mallinfo2().hblkhd - before;
    EXPECT_LT(taken, 3U << 20U);
}

TEST_F(CodeLibrariesTest, ShowsTheFirstRowsOfTheShippedFilesInHardlyAny)
{
    codes.LoadCodeLibraries(files, QStringLiteral(TEST_SOURCE_DIR "/data"));
    const auto before = mallinfo2().uordblks + mallinfo2().hblkhd;
    const auto tree = codes.tree();
    EXPECT_TRUE(codes.isComplete());
    ASSERT_EQ(tree->rowCount(), 2);
    for (int root = 0; root < 2; ++root) {
        const QModelIndex parent = tree->index(root, 0);
        ASSERT_GT(tree->rowCount(parent), 100);
        for (int row = 0; row < tree->rowCount(parent); ++row) {
            const QModelIndex index = tree->index(row, 0, parent);
            EXPECT_FALSE(index.data().toString().isEmpty());
            EXPECT_EQ(index.parent(), parent);
            EXPECT_TRUE(tree->rowCount(index) > 0 || root == 0) << "an element may have no attributes";
        }
    }
    EXPECT_LT(mallinfo2().uordblks + mallinfo2().hblkhd - before, 100U << 10U);
}

TEST_F(CodeLibrariesTest, ReadsAFileThatIsNotTheShippedOneToTheByte)
{
    const auto copy = [&](const char *name, const auto &change) {
        QFile shipped(QStringLiteral(TEST_SOURCE_DIR "/data/") + QLatin1String(name));
        ASSERT_TRUE(shipped.open(QIODevice::ReadOnly));
        QByteArray bytes = shipped.readAll();
        change(bytes);
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    copy("Html.tcb", [](QByteArray &bytes) {
        bytes.replace(bytes.indexOf("\xBB"
                                    "abbr\r"),
                      5,
                      "\xBB"
                      "abbs");
    });
    copy("Css.tcb", [](QByteArray &bytes) { bytes.chop(2); });
    load();
    const auto tree = codes.tree();
    const QModelIndex html = tree->index(0, 0);
    EXPECT_EQ(tree->index(2, 0, html).data().toString(), QStringLiteral("abbs"));
    EXPECT_TRUE(codes.isComplete());
}

TEST_F(CodeLibrariesTest, HasNothingOfAShippedFileThatCannotBeRead)
{
    FailingFiles failing;
    failing.readFailure = FileError{75, 0, QStringLiteral("Path/File access error")};
    codes.LoadCodeLibraries(failing, QStringLiteral(TEST_SOURCE_DIR "/data"));
    EXPECT_EQ(codes.tree()->rowCount(), 0);
    EXPECT_FALSE(codes.isComplete());
}

class ChosenCodeTest : public CodeLibrariesTest
{
protected:
    enum Node { Html, P, Align, Left, Right, Css, Color, Red };
    ChosenCodeTest()
    {
        put("Html.tcb", "+p\n++align=\n+++left\n++-right\n");
        put("Css.tcb", "+color\n++red\n");
        load();
    }
};

TEST_F(ChosenCodeTest, IsNothingForTheRoots)
{
    EXPECT_EQ(chosen(Html), std::nullopt);
    EXPECT_EQ(chosen(Css), std::nullopt);
}

TEST_F(ChosenCodeTest, IsTheStartOfATagForAnElement)
{
    EXPECT_EQ(chosen(P), QStringLiteral("<p"));
    EXPECT_EQ(chosen(P, u' '), QStringLiteral("<p"));
}

TEST_F(ChosenCodeTest, IsAValueInQuotesWhateverStandsBefore)
{
    for (const auto before : {std::optional<QChar>(u'='), std::optional<QChar>(u' '), std::optional<QChar>()})
        EXPECT_EQ(chosen(Left, before), QStringLiteral("\"left\""));
}

TEST_F(ChosenCodeTest, IsOtherCodeBehindABlank)
{
    const struct {
        int node;
        QString text;
    } rows[] = {{Align, QStringLiteral("align=")},
                {Right, QStringLiteral("right")}, // deprecated values are no values here
                {Color, QStringLiteral("color:")},
                {Red, QStringLiteral("red")}};
    for (const auto &row : rows) {
        EXPECT_EQ(chosen(row.node, u'p'), u' ' + row.text);
        EXPECT_EQ(chosen(row.node, {}), u' ' + row.text) << "at the start of the text";
        EXPECT_EQ(chosen(row.node, u'\t'), u' ' + row.text);
        EXPECT_EQ(chosen(row.node, u' '), row.text);
        EXPECT_EQ(chosen(row.node, u'\n'), row.text);
    }
}

TEST_F(CodeLibrariesTest, KnowsTheRootsByTheirTextsAlone)
{
    put("Html.tcb", "+Cascading Style Sheets\n++HyperText Markup Language\n");
    put("Css.tcb", "");
    load();
    EXPECT_EQ(chosen(1), std::nullopt);
    EXPECT_EQ(chosen(2), std::nullopt);
}
} // namespace
