#include "common/keptPage.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
KeptPage samplePage()
{
    KeptPage page;
    page.order = 7;
    page.path = QStringLiteral("/home/ann/a page.htm");
    page.newDoc = false;
    page.unicode = true;
    page.format = {Encoding::Other, LineEnd::Lf, QStringLiteral("KOI8-R")};
    page.plainEncoding = Encoding::Windows1252;
    page.mixedLineEnds = true;
    page.internetOrigin = QStringLiteral("http://example.org/");
    page.text =
        QStringLiteral("<p>\r\n\u20AC") + QChar(0xD800) + QChar(u'\0'); // half a pair and a NUL, as files hold them
    page.selStart = 3;
    page.selLength = 2;
    page.stamp = FileStamp{12, 34, 56};
    page.fileDigest = digestOf("old");
    return page;
}

TEST(KeptPage, ComesBackAsItWas)
{
    const KeptPage page = samplePage();
    const std::optional<KeptPage> read = keptPageOf(keptPageBytes(page));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->order, 7);
    EXPECT_EQ(read->path, page.path);
    EXPECT_FALSE(read->newDoc);
    EXPECT_TRUE(read->unicode);
    EXPECT_EQ(read->format, page.format);
    EXPECT_EQ(read->plainEncoding, Encoding::Windows1252);
    EXPECT_TRUE(read->mixedLineEnds);
    EXPECT_EQ(read->internetOrigin, page.internetOrigin);
    EXPECT_EQ(read->text, page.text);
    EXPECT_EQ(read->selStart, 3);
    EXPECT_EQ(read->selLength, 2);
    EXPECT_EQ(read->stamp, page.stamp);
    EXPECT_EQ(read->fileDigest, digestOf("old"));
}

TEST(KeptPage, KnowsTheFileByADigestOfEachVersion)
{
    const QByteArray earlier = QByteArray::fromHex("cba06b5736faf67e54b07b561eae94395e774c517a7d910a54369e1263ccfbd4");
    for (const QByteArray &digest : {digestOf("old"), earlier}) {
        EXPECT_TRUE(isDigestOf(digest, "old"));
        EXPECT_FALSE(isDigestOf(digest, "new"));
        EXPECT_FALSE(isDigestOf(digest, ""));
    }
    EXPECT_FALSE(isDigestOf({}, "old")); // the file could not be looked at
    EXPECT_FALSE(isDigestOf({}, ""));
}

TEST(KeptPage, KnowsAPageWithoutAFile)
{
    KeptPage page;
    page.newDoc = true;
    page.text = QStringLiteral("x");
    const std::optional<KeptPage> read = keptPageOf(keptPageBytes(page));
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->newDoc);
    EXPECT_TRUE(read->path.isEmpty());
    EXPECT_FALSE(read->stamp);
}

TEST(KeptPage, KnowsWhyItWasKept)
{
    KeptPage page = samplePage();
    EXPECT_TRUE(keptPageOf(keptPageBytes(page))->changed);
    EXPECT_FALSE(keptPageOf(keptPageBytes(page))->startsAnew);
    page.changed = false;
    page.startsAnew = true;
    EXPECT_FALSE(keptPageOf(keptPageBytes(page))->changed);
    EXPECT_TRUE(keptPageOf(keptPageBytes(page))->startsAnew);
}

TEST(KeptPage, ReadsWhatEarlierVersionsKept)
{
    const QByteArray first = QByteArray::fromHex("00000007" // the order
                                                 "00000004"
                                                 "002F0061" // the path "/a"
                                                 "00"
                                                 "01"
                                                 "00"
                                                 "01" // of a file, UTF-16, encoding and line end
                                                 "FFFFFFFF"
                                                 "02"
                                                 "01"       // no charset, plain encoding, mixed ends
                                                 "00000000" // no origin
                                                 "0000000000000003"
                                                 "0000000000000002" // the selection
                                                 "01"
                                                 "000000000000000C"
                                                 "0000000000000022"
                                                 "0000000000000038"
                                                 "00000003"
                                                 "6F6C64" // the digest of its file
                                                 "00000004"
                                                 "003C20AC"); // the text
    const QByteArray second = first + QByteArray::fromHex("0001");
    const auto read = [](const char *mark, const QByteArray &body) {
        return keptPageOf(mark + QCryptographicHash::hash(body, QCryptographicHash::Sha256) + body);
    };
    const auto old = read("Tagwrighter kept page 1\n", first);
    const auto later = read("Tagwrighter kept page 2\n", second);
    ASSERT_TRUE(old);
    ASSERT_TRUE(later);
    for (const KeptPage &page : {*old, *later}) {
        EXPECT_EQ(page.order, 7);
        EXPECT_EQ(page.path, QStringLiteral("/a"));
        EXPECT_TRUE(page.unicode);
        EXPECT_TRUE(page.mixedLineEnds);
        EXPECT_EQ(page.text, QStringLiteral("<\u20AC"));
        EXPECT_EQ(page.selStart, 3);
        EXPECT_EQ(page.selLength, 2);
        EXPECT_EQ(page.stamp, (FileStamp{12, 34, 56}));
        EXPECT_EQ(page.fileDigest, "old");
    }
    EXPECT_TRUE(old->changed);
    EXPECT_FALSE(old->startsAnew);
    EXPECT_FALSE(later->changed);
    EXPECT_TRUE(later->startsAnew);
    EXPECT_FALSE(read("Tagwrighter kept page 2\n", first));
    EXPECT_FALSE(read("Tagwrighter kept page 1\n", second));
    EXPECT_FALSE(keptPageOf("Tagwrighter kept page 2\n" + QByteArray(32, 'x') + second));
    EXPECT_FALSE(keptPageOf("Tagwrighter kept page 2\nx"));
}

TEST(KeptPage, RefusesWhatIsCutShortOrChanged)
{
    const QByteArray bytes = keptPageBytes(samplePage());
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(keptPageOf(bytes.first(length))) << length;
    EXPECT_FALSE(keptPageOf(bytes + 'x'));
    QRandomGenerator random(20261122);
    for (int i = 0; i < 2000; ++i) {
        QByteArray changed = bytes;
        changed[random.bounded(static_cast<int>(bytes.size()))] ^= static_cast<char>(1 << random.bounded(8));
        EXPECT_FALSE(keptPageOf(changed));
    }
    EXPECT_FALSE(keptPageOf("no page at all"));
}
} // namespace
