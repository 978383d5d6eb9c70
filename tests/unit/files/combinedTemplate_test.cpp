#include "files/combinedTemplate.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
using container::Entry;

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

TEST(CombinedTemplate, StartsWithItsMagicAndADirectoryPosition)
{
    EXPECT_EQ(container::header(0), "TagwrighterCombinedTemplateFile" + hex("00000000"));
    EXPECT_EQ(container::header(0x01020304), "TagwrighterCombinedTemplateFile" + hex("04030201"));
}

TEST(CombinedTemplate, IsKnownByItsMagicInAnyCase)
{
    EXPECT_TRUE(container::hasMagic("TagwrighterCombinedTemplateFile"));
    EXPECT_TRUE(container::hasMagic("TAGWRIGHTERcombinedtemplatefile and more"));
    EXPECT_FALSE(container::hasMagic("TagwrighterCombinedTemplateFil"));
    EXPECT_FALSE(container::hasMagic("<html><head><title>Combined</title></head>"));
    EXPECT_FALSE(container::hasMagic(""));
}

TEST(CombinedTemplate, TakesADirectoryPositionOnlyInsideTheFile)
{
    const auto position = [](const char *digits, qint64 size) {
        return container::DirectoryPos(QByteArray(31, 'x') + hex(digits), size);
    };
    EXPECT_EQ(position("24000000", 100), 36);
    EXPECT_EQ(position("64000000", 100), 100);
    EXPECT_EQ(position("65000000", 100), std::nullopt); // behind the last byte
    EXPECT_EQ(position("00000000", 100), std::nullopt); // an empty container
    EXPECT_EQ(position("ffffffff", 100), std::nullopt); // -1
    EXPECT_EQ(position("240000", 100), std::nullopt);   // cut off
    EXPECT_EQ(container::DirectoryPos("", 0), std::nullopt);
}

TEST(CombinedTemplate, WritesAnEntryAsPlaceSizeAndName)
{
    EXPECT_EQ(container::entryBytes({QStringLiteral("a.gif"), 36, 258}),
              hex("24000000") + hex("02010000") + QByteArray("a.gif\0", 6));
    // A name is single bytes where it fits: 0xE9 is the e with an acute.
    EXPECT_EQ(container::entryBytes({QStringLiteral("caf\u00e9"), 1, 1}),
              hex("01000000") + hex("01000000") + QByteArray("caf\xe9\0", 5));
    EXPECT_TRUE(container::entryBytes({QStringLiteral("empty"), 36, 0}));
}

TEST(CombinedTemplate, RefusesEntriesThatCouldNotBeReadBack)
{
    EXPECT_FALSE(container::entryBytes({QString(), 36, 1}));
    EXPECT_TRUE(container::entryBytes({QString(254, u'a'), 36, 1}));
    EXPECT_FALSE(container::entryBytes({QString(255, u'a'), 36, 1}));
    EXPECT_FALSE(container::entryBytes({QStringLiteral("a") + QChar(0) + u'b', 36, 1}));
    EXPECT_TRUE(container::entryBytes({QStringLiteral("a"), 0x7FFFFFFF, 1}));
    EXPECT_FALSE(container::entryBytes({QStringLiteral("a"), 0x80000000LL, 1}));
    EXPECT_FALSE(container::entryBytes({QStringLiteral("a"), 36, 0x80000000LL}));
}

TEST(CombinedTemplate, ReadsTheEntriesOfADirectory)
{
    const QByteArray directory = hex("24000000") + hex("05000000") + QByteArray("index_tmp.dat\0", 14) +
                                 hex("29000000") + hex("03000000") + QByteArray("logo.gif\0", 9);
    const QList<Entry> expected{{QStringLiteral("index_tmp.dat"), 36, 5}, {QStringLiteral("logo.gif"), 41, 3}};
    EXPECT_EQ(container::entries(directory), expected);
}

TEST(CombinedTemplate, EndsTheDirectoryWhereNothingCanBeReachedAnyMore)
{
    const QByteArray first = hex("24000000") + hex("05000000") + QByteArray("a\0", 2);
    const QByteArray last = hex("29000000") + hex("05000000") + QByteArray("z\0", 2);
    const auto names = [&](const QByteArray &between) {
        QStringList found;
        for (const Entry &entry : container::entries(first + between + last))
            found.append(entry.name);
        return found.join(u' ');
    };
    EXPECT_EQ(names({}), QStringLiteral("a z"));
    EXPECT_EQ(names(hex("29000000") + hex("00000000") + QByteArray("empty\0", 6)), QStringLiteral("a")); // no size
    EXPECT_EQ(names(hex("00000000") + hex("05000000") + QByteArray("lost\0", 5)), QStringLiteral("a"));  // no position
    EXPECT_EQ(names(hex("29000000") + hex("05000000") + QByteArray("\0", 1)), QStringLiteral("a"));      // no name
    EXPECT_EQ(names(hex("29000000") + hex("05000000") + QByteArray(255, 'n')), QStringLiteral("a")); // no end of one
    EXPECT_EQ(container::entries(hex("24000000") + hex("05000000") + "cut off").size(), 0);
    EXPECT_EQ(container::entries("short").size(), 0);
}

TEST(CombinedTemplate, TakesInNoMoreThan999Names)
{
    QByteArray directory;
    for (int i = 0; i < 1200; ++i)
        directory += hex("24000000") + hex("01000000") + QByteArray::number(i) + '\0';
    EXPECT_EQ(container::entries(directory).size(), 999);
}

TEST(CombinedTemplate, FindsTheFirstEntryOfANameInAnyCase)
{
    const QList<Entry> entries{{QStringLiteral("index_tmp.dat"), 36, 5},
                               {QStringLiteral("Logo.GIF"), 41, 3},
                               {QStringLiteral("logo.gif"), 44, 3}};
    EXPECT_EQ(container::find(entries, QStringLiteral("logo.gif")), entries[1]);
    EXPECT_EQ(container::find(entries, QStringLiteral("INDEX_TMP.DAT")), entries[0]);
    EXPECT_EQ(container::find(entries, QStringLiteral("other.gif")), std::nullopt);
}

TEST(CombinedTemplate, ChecksThatContentsLieInTheFile)
{
    EXPECT_TRUE(container::liesIn({{}, 36, 65}, 100));
    EXPECT_FALSE(container::liesIn({{}, 36, 66}, 100));
    EXPECT_FALSE(container::liesIn({{}, 0, 5}, 100));
    EXPECT_FALSE(container::liesIn({{}, -5, 5}, 100));
    EXPECT_FALSE(container::liesIn({{}, 36, -5}, 100));
    EXPECT_FALSE(container::liesIn({{}, 0x7FFFFFFF, 0x7FFFFFFF}, 100));
    EXPECT_FALSE(container::liesIn({{}, 1, 1}, 0));
}

TEST(CombinedTemplate, TellsNamesThatStayInTheirFolder)
{
    for (const char *plain : {"a.gif", ".hidden", "a b.gif", "..a", "ab:c", "...", "con"})
        EXPECT_TRUE(container::isPlainName(QLatin1String(plain))) << plain;
    for (const char *other :
         {"", ".", "..", "../a", "a/b", "/a", "..\\a", "a\\b", "\\\\host\\a", "c:a", "a:b", "C:\\a", "a\nb"})
        EXPECT_FALSE(container::isPlainName(QLatin1String(other))) << other;
    EXPECT_FALSE(container::isPlainName(QStringLiteral("a") + QChar(0) + u'b'));
}
} // namespace
