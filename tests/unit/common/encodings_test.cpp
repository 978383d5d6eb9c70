#include "common/encodings.h"

#include "common/text.h"
#include "common/utf8.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QString codes(std::initializer_list<char16_t> list)
{
    QString text;
    for (const char16_t code : list)
        text += QChar(code);
    return text;
}

struct DecodeRow {
    const char *bytes;
    QString text;
    Encoding encoding;
};

TEST(Decode, TakesUtf8WhereTheBytesAreValidElseWindows1252)
{
    const DecodeRow rows[] = {
        {"", codes({}), Encoding::Utf8},
        {"61", codes({0x61}), Encoding::Utf8},
        {"C3A9", codes({0xE9}), Encoding::Utf8},
        {"EFBBBF61", codes({0x61}), Encoding::Utf8Bom},
        {"EFBBBF", codes({}), Encoding::Utf8Bom},
        {"EFBBBFEFBBBF61", codes({0xFEFF, 0x61}), Encoding::Utf8Bom},
        {"61EFBBBF", codes({0x61, 0xFEFF}), Encoding::Utf8},
        {"F09F9880", codes({0xD83D, 0xDE00}), Encoding::Utf8},
        {"F48FBFBF", codes({0xDBFF, 0xDFFF}), Encoding::Utf8},
        {"EFBFBF", codes({0xFFFF}), Encoding::Utf8},
        {"610062", codes({0x61, 0, 0x62}), Encoding::Utf8},
        {"E9", codes({0xE9}), Encoding::Windows1252},
        {"80", codes({0x20AC}), Encoding::Windows1252},
        {"C3", codes({0xC3}), Encoding::Windows1252},                    // cut off
        {"E282", codes({0xE2, 0x201A}), Encoding::Windows1252},          // cut off
        {"C080", codes({0xC0, 0x20AC}), Encoding::Windows1252},          // longer than need be
        {"E09F80", codes({0xE0, 0x178, 0x20AC}), Encoding::Windows1252}, // longer than need be
        {"F08F8080", codes({0xF0, 0x8F, 0x20AC, 0x20AC}), Encoding::Windows1252},
        {"F4908080", codes({0xF4, 0x90, 0x20AC, 0x20AC}), Encoding::Windows1252}, // above the last character
        {"EDA080", codes({0xED, 0xA0, 0x20AC}), Encoding::Windows1252},           // half a pair
        {"EFBBBFE9", codes({0xEF, 0xBB, 0xBF, 0xE9}), Encoding::Windows1252},
        {"00E9", codes({0, 0xE9}), Encoding::Windows1252},
    };
    for (const DecodeRow &row : rows) {
        const DecodedText decoded = decode(hex(row.bytes));
        EXPECT_EQ(decoded.text, row.text) << row.bytes;
        EXPECT_EQ(decoded.format.encoding, row.encoding) << row.bytes;
        EXPECT_EQ(encode(decoded.text, decoded.format).bytes.toHex().toUpper(), QByteArray(row.bytes)) << row.bytes;
    }
}

TEST(Decode, KnowsTheUpperControlsOfWindows1252)
{
    const QString expected =
        codes({0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
               0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
               0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178});
    QByteArray bytes;
    for (int byte = 0x80; byte < 0xA0; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(decode(bytes).text, expected);
}

TEST(Decode, KeepsEveryByteOfWindows1252)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n')
            bytes += static_cast<char>(byte);
    }
    const DecodedText decoded = decode(bytes);
    EXPECT_EQ(decoded.format.encoding, Encoding::Windows1252);
    EXPECT_EQ(decoded.text.size(), 254);
    EXPECT_EQ(encode(decoded.text, decoded.format).bytes, bytes);
}

TEST(Decode, ReadsUtf16ByItsMarkAndLittleEndianWithout)
{
    const DecodeRow rows[] = {
        {"FFFE6100E900", codes({0x61, 0xE9}), Encoding::Utf16LE},
        {"FEFF006100E9", codes({0x61, 0xE9}), Encoding::Utf16BE},
        {"6100E900", codes({0x61, 0xE9}), Encoding::Utf16LE},
        {"", codes({}), Encoding::Utf16LE},
        {"FFFE", codes({}), Encoding::Utf16LE},
        {"FEFF", codes({}), Encoding::Utf16BE},
        {"FFFEFFFE6100", codes({0xFEFF, 0x61}), Encoding::Utf16LE},
        {"FFFE3DD861003DD800DE00DE", codes({0xD83D, 0x61, 0xD83D, 0xDE00, 0xDE00}), Encoding::Utf16LE}, // lone halves
        {"FFFE000061000000", codes({0, 0x61, 0}), Encoding::Utf16LE},
        {"FFFE610062", codes({0x61, 0x62}), Encoding::Utf16LE}, // the last byte's other half is missing
        {"FEFF006162", codes({0x61, 0x6200}), Encoding::Utf16BE},
        {"61", codes({0x61}), Encoding::Utf16LE},
    };
    for (const DecodeRow &row : rows) {
        const DecodedText decoded = decode(hex(row.bytes), true);
        EXPECT_EQ(decoded.text, row.text) << row.bytes;
        EXPECT_EQ(decoded.format.encoding, row.encoding) << row.bytes;
    }
}

struct LineRow {
    const char *bytes;
    const char *text;
    LineEnd lineEnd;
    bool mixed;
};

TEST(Decode, TellsHowLinesEnd)
{
    const LineRow rows[] = {
        {"a", "a", LineEnd::CrLf, false},
        {"a\r\nb\r\n", "a\r\nb\r\n", LineEnd::CrLf, false},
        {"a\nb\n", "a\r\nb\r\n", LineEnd::Lf, false},
        {"a\rb\r", "a\r\nb\r\n", LineEnd::Cr, false},
        {"a\nb\nc\r\n", "a\r\nb\r\nc\r\n", LineEnd::Lf, true},
        {"a\nb\r\nc\r\n", "a\r\nb\r\nc\r\n", LineEnd::CrLf, true},
        {"a\nb\r\n", "a\r\nb\r\n", LineEnd::CrLf, true}, // as many of the one as of the other
        {"a\rb\rc\n", "a\r\nb\r\nc\r\n", LineEnd::Lf, true},
        {"a\rb\rc\r\n", "a\r\nb\r\nc\r\n", LineEnd::CrLf, true},
        {"\n\r", "\r\n\r\n", LineEnd::Lf, true},
    };
    for (const LineRow &row : rows) {
        const DecodedText decoded = decode(QByteArray(row.bytes));
        EXPECT_EQ(decoded.text.toStdString(), row.text);
        EXPECT_EQ(decoded.format.lineEnd, row.lineEnd) << row.text;
        EXPECT_EQ(decoded.mixedLineEnds, row.mixed) << row.text;
        if (!row.mixed) {
            EXPECT_EQ(encode(decoded.text, decoded.format).bytes, QByteArray(row.bytes));
        }
    }
}

TEST(Encode, WritesEachEncodingAndLineEnd)
{
    const QString text = QStringLiteral("a\r\n") + QChar(0xE9);
    EXPECT_EQ(encode(text, {Encoding::Utf8, LineEnd::Lf}).bytes, hex("610AC3A9"));
    EXPECT_EQ(encode(text, {Encoding::Utf8Bom, LineEnd::CrLf}).bytes, hex("EFBBBF610D0AC3A9"));
    EXPECT_EQ(encode(text, {Encoding::Windows1252, LineEnd::Cr}).bytes, hex("610DE9"));
    EXPECT_EQ(encode(text, {Encoding::Utf16LE, LineEnd::CrLf}).bytes, hex("FFFE61000D000A00E900"));
    EXPECT_EQ(encode(text, {Encoding::Utf16BE, LineEnd::Lf}).bytes, hex("FEFF0061000A00E9"));
}

TEST(Encode, MakesEveryBreakTheOneAskedFor)
{
    EXPECT_EQ(encode(QStringLiteral("a\rb\nc\r\nd"), {Encoding::Utf8, LineEnd::CrLf}).bytes, "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(encode(QStringLiteral("a\rb\nc\r\nd"), {Encoding::Utf8, LineEnd::Lf}).bytes, "a\nb\nc\nd");
}

TEST(Encode, LeavesWindows1252WhereItCannotHoldTheText)
{
    const EncodedText fits = encode(codes({0x20AC, 0x81}), {Encoding::Windows1252, LineEnd::CrLf});
    EXPECT_EQ(fits.bytes, hex("8081"));
    EXPECT_EQ(fits.encoding, Encoding::Windows1252);
    EXPECT_FALSE(fits.switchedToUtf8);

    for (const char16_t code : {char16_t(0x80), char16_t(0x100), char16_t(0x2192), char16_t(0xFFFD)}) {
        const EncodedText switched = encode(codes({code}), {Encoding::Windows1252, LineEnd::CrLf});
        EXPECT_TRUE(switched.switchedToUtf8) << static_cast<int>(code);
        EXPECT_EQ(switched.encoding, Encoding::Utf8) << static_cast<int>(code);
        EXPECT_EQ(switched.bytes, codes({code}).toUtf8()) << static_cast<int>(code);
    }
}

TEST(Encode, LeavesWindows1252WhereItsBytesWouldReadBackAsUtf8)
{
    const EncodedText encoded = encode(codes({0xC3, 0xA9}), {Encoding::Windows1252, LineEnd::CrLf});
    EXPECT_TRUE(encoded.switchedToUtf8);
    EXPECT_EQ(encoded.bytes, hex("C383C2A9"));
    EXPECT_EQ(decode(encoded.bytes).text, codes({0xC3, 0xA9}));
    EXPECT_FALSE(encode(QStringLiteral("plain"), {Encoding::Windows1252, LineEnd::CrLf}).switchedToUtf8);
}

TEST(Encode, LeavesWindows1252WhereItsBytesWouldReadBackAsUtf16)
{
    const EncodedText encoded = encode(codes({0xFF, 0xFE}), {Encoding::Windows1252, LineEnd::CrLf});
    EXPECT_TRUE(encoded.switchedToUtf8);
    EXPECT_EQ(encoded.bytes, hex("C3BFC3BE"));
    // Of an odd number they are no UTF-16.
    EXPECT_EQ(encode(codes({0xFF, 0xFE, 0x61}), {Encoding::Windows1252, LineEnd::CrLf}).bytes, hex("FFFE61"));
}

TEST(Encode, TakesTheMarkWhereUtf8WouldLoseSomethingWithoutIt)
{
    const EncodedText marked = encode(codes({0xFEFF, 0x61}), {Encoding::Utf8, LineEnd::CrLf});
    EXPECT_EQ(marked.bytes, hex("EFBBBFEFBBBF61"));
    EXPECT_EQ(marked.encoding, Encoding::Utf8Bom);

    const QString halves = codes({0xD83D, 0xD83D, 0xDE00, 0x61, 0xDE00});
    const EncodedText generalised = encode(halves, {Encoding::Utf8, LineEnd::CrLf});
    EXPECT_EQ(generalised.bytes, hex("EFBBBFEDA0BDF09F988061EDB880"));
    EXPECT_EQ(decode(generalised.bytes).text, halves);
}

TEST(Utf8Contents, RefusesAPairWrittenAsTwoHalves)
{
    EXPECT_FALSE(utf8Contents(hex("EDA0BDEDB880")));
    EXPECT_TRUE(utf8Contents(hex("EDB880EDA0BD")));
    EXPECT_TRUE(utf8Contents(hex("EDA0BD61EDB880")));
}

// Text of a seeded generator that favours what is known to go wrong: breaks, NULs, both halves of pairs, marks, the
// upper controls, and pairs of letters that look like UTF-8.
class Generator
{
public:
    explicit Generator(unsigned value) : engine(value) {}

    QString text()
    {
        QString made;
        const auto length = static_cast<int>(engine() % 24U);
        for (int i = 0; i < length; ++i)
            made += one();
        return made;
    }

    QByteArray bytes()
    {
        static const char *const pieces[] = {"\r",           "\n", "\xEF\xBB\xBF", "\xC3\xA9", "\xED\xA0\x80",
                                             "\xED\xB0\x80", "a",  "\x80",         "\xE2",     "\xFF\xFE"};
        QByteArray made;
        const auto length = static_cast<int>(engine() % 12U);
        for (int i = 0; i < length; ++i)
            made +=
                engine() % 4U == 0 ? QByteArray(1, static_cast<char>(engine())) : QByteArray(pieces[engine() % 10U]);
        return made;
    }

    LineEnd lineEnd() { return static_cast<LineEnd>(engine() % 3U); }

private:
    QString one()
    {
        static constexpr char16_t picked[] = {u'\r', u'\n', 0,      0xFEFF, 0xFFFE, 0xD83D, 0xDE00, 0x81, 0x80,
                                              0xC3,  0xA9,  0x20AC, 0x85,   0x2028, 0xA0,   0xEF,   0xBB, 0xBF};
        switch (engine() % 4U) {
        case 0:
            return QChar(picked[engine() % std::size(picked)]);
        case 1:
            return QChar(static_cast<char16_t>(engine() % 256U));
        case 2:
            return QChar(static_cast<char16_t>(engine()));
        default:
            return QStringLiteral("a<b>");
        }
    }

    std::mt19937 engine;
};

TEST(Encode, IsReadBackAsTheSameTextWhateverTheTextIs)
{
    Generator generator(20261121U);
    const Encoding all[] = {Encoding::Utf8, Encoding::Utf8Bom, Encoding::Windows1252, Encoding::Utf16LE,
                            Encoding::Utf16BE};
    for (int round = 0; round < 20000; ++round) {
        const QString text = withCrLf(generator.text());
        const LineEnd lineEnd = generator.lineEnd();
        for (const Encoding encoding : all) {
            const EncodedText encoded = encode(text, {encoding, lineEnd});
            const bool unicodeRow = encoding == Encoding::Utf16LE || encoding == Encoding::Utf16BE;
            const DecodedText decoded = decode(encoded.bytes, unicodeRow);
            ASSERT_EQ(decoded.text, text) << round << ' ' << encoded.bytes.toHex().constData();
            ASSERT_FALSE(decoded.mixedLineEnds);
        }
    }
}

TEST(Decode, LosesNoByteOfAnyFileWithOneKindOfBreak)
{
    Generator generator(77U);
    int checked = 0;
    for (int round = 0; round < 20000; ++round) {
        const QByteArray bytes = generator.bytes();
        const DecodedText decoded = decode(bytes);
        if (decoded.mixedLineEnds)
            continue;
        const EncodedText encoded = encode(decoded.text, decoded.format);
        if (hasUtf16Mark(bytes)) { // every other reader would take them for UTF-16
            ASSERT_EQ(encoded.encoding, Encoding::Utf8);
            continue;
        }
        ASSERT_EQ(encoded.bytes.toHex(), bytes.toHex());
        ASSERT_EQ(encoded.encoding, decoded.format.encoding);
        ++checked;
    }
    EXPECT_GT(checked, 10000);
}

TEST(OwnFile, IsReadBackAsTheSameTextWhateverTheTextIs)
{
    Generator generator(1U);
    for (int round = 0; round < 20000; ++round) {
        const QString text = generator.text();
        ASSERT_EQ(decodeOwnFile(encodeOwnFile(text)), withCrLf(text)) << round;
        const QString read = decodeOwnFile(generator.bytes());
        ASSERT_EQ(decodeOwnFile(encodeOwnFile(read)), read) << round;
    }
}

TEST(OwnFile, IsWindows1252AsLongAsThatHoldsIt)
{
    EXPECT_EQ(encodeOwnFile(codes({0xBB, 0x61, 0xAB})), hex("BB61AB"));
    EXPECT_EQ(encodeOwnFile(QStringLiteral("a\nb")), "a\r\nb");
    EXPECT_EQ(encodeOwnFile(codes({0x142})), hex("C582"));
    EXPECT_EQ(encodeOwnFile(codes({0xC5, 0x201A})), hex("C385E2809A")); // would read back as the line above
}

TEST(EncodingName, TellsTheUser)
{
    EXPECT_EQ(encodingName({Encoding::Utf8}), QStringLiteral("UTF-8"));
    EXPECT_EQ(encodingName({Encoding::Utf8Bom}), QStringLiteral("UTF-8 with mark"));
    EXPECT_EQ(encodingName({Encoding::Windows1252}), QStringLiteral("Windows-1252"));
    EXPECT_EQ(encodingName({Encoding::Utf16LE}), QStringLiteral("UTF-16 LE"));
    EXPECT_EQ(encodingName({Encoding::Utf16BE}), QStringLiteral("UTF-16 BE"));
    EXPECT_EQ(encodingName({Encoding::Other, LineEnd::Lf, QStringLiteral("KOI8-R")}), QStringLiteral("KOI8-R"));
    EXPECT_EQ(lineEndName(LineEnd::CrLf), QStringLiteral("CR LF"));
    EXPECT_EQ(lineEndName(LineEnd::Lf), QStringLiteral("LF"));
    EXPECT_EQ(lineEndName(LineEnd::Cr), QStringLiteral("CR"));
}

const FileFormat windows1252{Encoding::Windows1252};
const FileFormat koi8{Encoding::Other, LineEnd::CrLf, QStringLiteral("KOI8-R")};

TEST(CharactersThatDoNotFit, AreNamedOnceEach)
{
    const QString text = codes({0x141, 0x61, 0x4F8B, 0x141, 0xD83D, 0xDE00, 0x20AC, 0xE9});
    const QStringList expected{codes({0x141}), codes({0x4F8B}), codes({0xD83D, 0xDE00})};
    EXPECT_EQ(charactersThatDoNotFit(text, windows1252), expected);
    EXPECT_EQ(charactersThatDoNotFit(text, {Encoding::Utf8}), QStringList());
    EXPECT_EQ(charactersThatDoNotFit(codes({0x41F, 0xE9}), koi8), QStringList{codes({0xE9})});
}

TEST(WithReferences, WritesWhatDoesNotFitByItsNumber)
{
    EXPECT_EQ(withReferences(codes({0x141, 0xE9, 0xD83D, 0xDE00}), windows1252),
              QStringLiteral("&#321;") + codes({0xE9}) + QStringLiteral("&#128512;"));
    EXPECT_EQ(withReferences(codes({0x41F, 0xE9}), koi8), codes({0x41F}) + QStringLiteral("&#233;"));
    // All fit, but as bytes these two would be one character of UTF-8.
    EXPECT_EQ(withReferences(codes({0xC3, 0xA9}), windows1252), QStringLiteral("&#195;&#169;"));
    EXPECT_EQ(withReferences(codes({0xE9}), windows1252), codes({0xE9}));
    EXPECT_EQ(withReferences(codes({0x141, 0xD83D}), windows1252), QStringLiteral("&#321;") + codes({0xD83D}));
}

TEST(Encode, GoesToUtf8WhereTheNamedEncodingHasNoPlace)
{
    EXPECT_EQ(encode(codes({0x41F}), koi8).bytes, hex("F0"));
    const EncodedText other = encode(codes({0x41F, 0xE9}), koi8);
    EXPECT_EQ(other.bytes, hex("D09FC3A9"));
    EXPECT_EQ(other.encoding, Encoding::Utf8);
    EXPECT_TRUE(other.switchedToUtf8);
}

TEST(Encode, GoesToUtf8WhereTheBytesOfTheNamedEncodingWouldReadBackAsUnicode)
{
    const EncodedText asUtf16 = encode(codes({0x42A, 0x427}), koi8); // FF FE
    EXPECT_TRUE(asUtf16.switchedToUtf8);
    EXPECT_EQ(asUtf16.bytes, hex("D0AAD0A7"));
    const EncodedText asUtf8 = encode(codes({0x446, 0x2558}), koi8); // C3 A9
    EXPECT_TRUE(asUtf8.switchedToUtf8);
    EXPECT_EQ(asUtf8.bytes, hex("D186E29598"));
}
} // namespace
