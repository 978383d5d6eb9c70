#include "common/pageCharset.h"

#include <gtest/gtest.h>

namespace
{
struct CharsetRow {
    const char *page;
    const char *expected;
};

TEST(DeclaredCharset, IsReadFromTheFirstMetaThatNamesOne)
{
    const CharsetRow rows[] = {
        {R"(<meta charset="utf-8">)", "utf-8"},
        {R"(<META CHARSET=ISO-8859-1>)", "ISO-8859-1"},
        {R"(<meta charset='windows-1252'/>)", "windows-1252"},
        {R"(<meta name="a>b" charset="utf-8">)", "utf-8"},
        {R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">)", "iso-8859-1"},
        {R"(<meta content='text/html;charset=UTF-8' http-equiv=content-type>)", "UTF-8"},
        {R"(<!-- <meta charset="utf-8"> --><meta charset="latin1">)", "latin1"},
        {R"(<meta name="author" content="A"><meta charset="utf-16">)", "utf-16"},
        {R"(<meta charset="utf-8"><meta charset="latin1">)", "utf-8"},
        {R"(<?xml version="1.0" encoding="koi8-r"?><html>)", "koi8-r"},
        {R"(<?xml version='1.0' encoding='koi8-r' ?><meta charset="utf-8">)", "koi8-r"},
        {R"(<?xml version="1.0"?><meta charset="utf-8">)", "utf-8"},
        {R"( <?xml version="1.0" encoding="koi8-r"?><meta charset="utf-8">)", "utf-8"}, // no declaration behind a blank
    };
    for (const CharsetRow &row : rows)
        EXPECT_EQ(declaredCharset(QLatin1String(row.page)), QLatin1String(row.expected)) << row.page;
}

TEST(DeclaredCharset, IsNothingWhereThereIsNone)
{
    const char *pages[] = {
        "",
        "<p>charset=utf-8</p>",
        R"(<metadata charset="utf-8">)",
        R"(<meta name="description" content="charset=utf-8">)",
        R"(<!-- <meta charset="utf-8">)",
        R"(<meta)",
    };
    for (const char *page : pages)
        EXPECT_EQ(declaredCharset(QLatin1String(page)), QString()) << page;
}

TEST(NamesEncoding, KnowsTheNamesThatPagesUse)
{
    EXPECT_TRUE(namesEncoding(QStringLiteral("UTF-8"), {Encoding::Utf8}));
    EXPECT_TRUE(namesEncoding(QStringLiteral(" utf8 "), {Encoding::Utf8Bom}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("iso-8859-1"), {Encoding::Windows1252}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("Windows-1252"), {Encoding::Windows1252}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("us-ascii"), {Encoding::Windows1252}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("utf-16"), {Encoding::Utf16LE}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("utf-16"), {Encoding::Utf16BE}));
    EXPECT_TRUE(namesEncoding(QStringLiteral("koi8"), {Encoding::Other, LineEnd::CrLf, QStringLiteral("KOI8-R")}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("koi8-u"), {Encoding::Other, LineEnd::CrLf, QStringLiteral("KOI8-R")}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("utf-8"), {Encoding::Other, LineEnd::CrLf, QStringLiteral("KOI8-R")}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("utf-16be"), {Encoding::Utf16LE}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("iso-8859-1"), {Encoding::Utf8}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("utf-8"), {Encoding::Windows1252}));
    EXPECT_FALSE(namesEncoding(QStringLiteral("shift_jis"), {Encoding::Windows1252}));
}

struct RenamedRow {
    const char *page;
    const char *expected;
};

TEST(WithDeclaredCharset, ReplacesEveryNameInItsPlace)
{
    const RenamedRow rows[] = {
        {R"(<meta charset="iso-8859-1">)", R"(<meta charset="utf-8">)"},
        {R"(<META CHARSET = latin1 >)", R"(<META CHARSET = utf-8 >)"},
        {R"(<meta charset=" latin1 ">)", R"(<meta charset=" utf-8 ">)"},
        {R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">)",
         R"(<meta http-equiv="Content-Type" content="text/html; charset=utf-8">)"},
        {R"(<?xml version="1.0" encoding="koi8-r"?><meta charset="koi8-r"><!-- <meta charset="x"> -->)",
         R"(<?xml version="1.0" encoding="utf-8"?><meta charset="utf-8"><!-- <meta charset="x"> -->)"},
        {R"(<meta name="author" content="latin1"><meta charset="latin1">latin1)",
         R"(<meta name="author" content="latin1"><meta charset="utf-8">latin1)"},
    };
    for (const RenamedRow &row : rows)
        EXPECT_EQ(withDeclaredCharset(QLatin1String(row.page), QStringLiteral("utf-8")), QLatin1String(row.expected))
            << row.page;
}

TEST(WithDeclaredCharset, GivesANameToAPageWithoutOne)
{
    const RenamedRow rows[] = {
        {"<html>\r\n<head>\r\n<title>", "<html>\r\n<head>\r\n<meta charset=\"utf-8\">\r\n<title>"},
        {R"(<HEAD lang="a>b"><p>)", "<HEAD lang=\"a>b\">\r\n<meta charset=\"utf-8\"><p>"},
        {"<header><p>", "<header><p>"},
        {"a", "a"},
    };
    for (const RenamedRow &row : rows)
        EXPECT_EQ(withDeclaredCharset(QLatin1String(row.page), QStringLiteral("utf-8")), QLatin1String(row.expected))
            << row.page;
}

struct PageRow {
    const char *label;
    const char *bytes; ///< hexadecimal, behind the page's name for its encoding
    const char16_t *text;
    const char *shown;
};

TEST(DecodePage, ReadsAndWritesWhatThePageNames)
{
    const PageRow rows[] = {
        {"koi8-r", "F0D2C9D7C5D4", u"\u041F\u0440\u0438\u0432\u0435\u0442", "KOI8-R"},
        {"windows-1251", "CFF0E8", u"\u041F\u0440\u0438", "windows-1251"},
        {"ISO-8859-2", "A3F3", u"\u0141\u00F3", "ISO-8859-2"},
        {"iso-8859-9", "F080", u"\u011F\u20AC", "windows-1254"},
        {"shift_jis", "93FA967B", u"\u65E5\u672C", "Shift_JIS"},
        {"x-sjis", "875C", u"\u2168", "Shift_JIS"},
        {"euc-jp", "C6FCCBDC", u"\u65E5\u672C", "EUC-JP"},
        {"iso-2022-jp", "1B2442467C4B5C1B2842", u"\u65E5\u672C", "ISO-2022-JP"},
        {"gb2312", "D6D0", u"\u4E2D", "GBK"},
        {"big5", "A4A4", u"\u4E2D", "Big5"},
        {"euc-kr", "C7D1", u"\uD55C", "EUC-KR"},
    };
    for (const PageRow &row : rows) {
        const QByteArray meta = QByteArray("<meta charset=\"") + row.label + "\">\n";
        const QByteArray bytes = meta + QByteArray::fromHex(row.bytes);
        const DecodedText decoded = decodePage(bytes);
        EXPECT_EQ(decoded.text,
                  QString::fromLatin1(meta).chopped(1) + QStringLiteral("\r\n") + QString::fromUtf16(row.text))
            << row.label;
        EXPECT_EQ(encodingName(decoded.format), QLatin1String(row.shown)) << row.label;
        EXPECT_EQ(decoded.format.lineEnd, LineEnd::Lf) << row.label;
        EXPECT_EQ(encode(decoded.text, decoded.format).bytes, bytes) << row.label;
    }
}

TEST(DecodePage, ReadsAsAnyOtherFileWhatIsNotInTheEncodingThatThePageNames)
{
    const char *pages[] = {
        "<meta charset=\"no-such-name\">\xE9", // not known
        "<meta charset=\"utf-16\">\xE9",       // told by a mark alone
        "<meta charset=\"utf-7\">\xE9",        // no page is in that
        "<meta charset=\"ibm037\">\xE9",       // the name itself would not read so
        "<meta charset=\"iso-8859-1\">\xE9",   // as browsers read it
        "<meta charset=\"shift_jis\">\x93",    // cut off
        "<!-- <meta charset=\"koi8-r\"> -->\xE9", "\xE9",
    };
    for (const char *page : pages) {
        const DecodedText decoded = decodePage(page);
        EXPECT_EQ(decoded.format.encoding, Encoding::Windows1252) << page;
        EXPECT_EQ(encode(decoded.text, decoded.format).bytes, QByteArray(page)) << page;
    }
}

TEST(DecodePage, TakesUtf8ThatCanBeNothingElseForWhatItIs)
{
    EXPECT_EQ(decodePage("<meta charset=\"koi8-r\">\xC3\xA9").format.encoding, Encoding::Utf8);
    EXPECT_EQ(decodePage("\xEF\xBB\xBF<meta charset=\"koi8-r\">").format.encoding, Encoding::Utf8Bom);
    // Plain ASCII may become anything as soon as a character is typed: what the page names.
    EXPECT_EQ(decodePage("<meta charset=\"koi8-r\">").format.charset, QStringLiteral("KOI8-R"));
    EXPECT_EQ(decodePage("<meta charset=\"utf-8\">").format.encoding, Encoding::Utf8);
    EXPECT_EQ(decodePage("<meta charset=\"iso-8859-1\">").format.encoding, Encoding::Utf8);
}

TEST(DecodePage, ReadsUtf16WithAMarkByEveryRow)
{
    for (const bool unicodeRow : {false, true}) {
        const DecodedText little = decodePage(QByteArray::fromHex("FFFE6100E900"), unicodeRow);
        EXPECT_EQ(little.text, QStringLiteral("a\u00E9"));
        EXPECT_EQ(little.format.encoding, Encoding::Utf16LE);
        const DecodedText big = decodePage(QByteArray::fromHex("FEFF006100E9"), unicodeRow);
        EXPECT_EQ(big.text, QStringLiteral("a\u00E9"));
        EXPECT_EQ(big.format.encoding, Encoding::Utf16BE);
    }
    // An odd byte could not be written again.
    EXPECT_EQ(decodePage(QByteArray::fromHex("FFFE61")).format.encoding, Encoding::Windows1252);
    EXPECT_EQ(decodePage(QByteArray::fromHex("6100")).text, QString::fromLatin1("a\0", 2));
}
} // namespace
