#include "texttools/codeWords.h"

#include "codeknowledge/codeLibraries.h"
#include "common/text.h"
#include "storage/localFileSystem.h"
#include "unit/texttools/smallCodes.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(CodeWords, AreWhatStandsUnderTheBranchAndUnderATag)
{
    const SmallCodes codes(q("a\n href=\n dir=\n  LTR\nTable\n border=\n a\nhidden\n hidden\n  until-found\n"));
    const CodeWords words(codes);
    EXPECT_EQ(words.elements(), QStringList({q("a"), q("Table"), q("hidden")}));
    EXPECT_TRUE(words.isElement(q("TABLE")));
    EXPECT_FALSE(words.isElement(q("href=")));
    EXPECT_FALSE(words.isElement(q("color:"))); // of the other branch
    EXPECT_TRUE(words.isAttribute(q("a"), q("HREF=")));
    EXPECT_FALSE(words.isAttribute(q("a"), q("href")));
    EXPECT_FALSE(words.isAttribute(q("A"), q("href="))); // the tag is compared exactly
    EXPECT_FALSE(words.isAttribute(q("a"), q("ltr")));   // a value
    EXPECT_EQ(words.attributesOf(q("Table")), QStringList({q("border="), q("a")}));
    // A tag that has the name of an attribute gets that attribute's values, too.
    EXPECT_EQ(words.attributesOf(q("hidden")), QStringList({q("hidden"), q("until-found")}));
    EXPECT_EQ(words.attributesOf(q("nothing")), QStringList());
}

/// The walk through all nodes that the index stands for.
class LiteralWalk
{
public:
    explicit LiteralWalk(const CodeKnowledge &codes)
    {
        for (int number = 1; number < codes.HtmlCodeNodeCount(); ++number) {
            const TreeNode &node = codes.node(number);
            const TreeNode &above = codes.node(node.parent);
            const bool element = codes.isElement(number);
            // The elements of drawings stand under one of HTML, and have names with capitals, unlike the tags looked
            // for.
            const bool inner = codes.isElement(node.parent) && codes.parentOf(node.parent) > 0;
            const bool attribute = !element || node.parent == 0;
            m_nodes.push_back({inner ? above.text.toLower() : above.text, element, attribute, node.text.toLower()});
        }
    }
    bool isElement(const QString &word) const
    {
        const QString name = word.toLower();
        return std::any_of(m_nodes.begin(), m_nodes.end(),
                           [&](const Node &node) { return node.element && node.lower == name; });
    }
    bool isAttribute(const QString &tag, const QString &word) const
    {
        const QString name = word.toLower();
        return std::any_of(m_nodes.begin(), m_nodes.end(),
                           [&](const Node &node) { return node.attribute && node.above == tag && node.lower == name; });
    }

private:
    struct Node {
        QString above;
        bool element = false;
        bool attribute = false; ///< or a value, or what stands under the root
        QString lower;
    };
    std::vector<Node> m_nodes;
};

/// A name of the tree, or one that is nearly in it.
QString randomName(const CodeKnowledge &codes, QRandomGenerator &random)
{
    QString name = codes.node(random.bounded(codes.nodeCount())).text;
    switch (random.bounded(6)) {
    case 0:
        name = name.toUpper();
        break;
    case 1:
        name.remove(random.bounded(int(name.size()) + 1), 1);
        break;
    case 2:
        name.insert(random.bounded(int(name.size()) + 1), QChar(u'a' + char16_t(random.bounded(26))));
        break;
    default:
        break;
    }
    return name;
}

QString randomTag(const CodeKnowledge &codes, QRandomGenerator &random, const QStringList &elements)
{
    if (random.bounded(4))
        return elements[random.bounded(int(elements.size()))];
    return randomName(codes, random);
}

TEST(CodeWords, AgreeWithTheWalkThroughAllNodes)
{
    CodeLibraries codes;
    LocalFileSystem files;
    codes.LoadCodeLibraries(files, q(TEST_SOURCE_DIR "/data"));
    ASSERT_GT(codes.HtmlCodeNodeCount(), 40'000);
    const CodeWords words(codes);
    const LiteralWalk walk(codes);
    const QStringList elements = words.elements();
    QRandomGenerator random(5);
    int known = 0;
    for (int round = 0; round < 10'000; ++round) {
        const QString word = randomName(codes, random);
        const QString tag = randomTag(codes, random, elements);
        const bool isElement = walk.isElement(word);
        const bool isAttribute = walk.isAttribute(tag, word);
        known += isElement || isAttribute;
        ASSERT_EQ(words.isElement(word), isElement) << word.toStdString();
        ASSERT_EQ(words.isAttribute(tag, word), isAttribute) << tag.toStdString() << ' ' << word.toStdString();
    }
    EXPECT_GT(known, 1000);
}
} // namespace
