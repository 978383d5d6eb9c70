// The text of the surface: what is put in reads back, whole and in parts, with breaks as two characters.
#include "surfaceFixture.h"

namespace
{
struct RoundTrip {
    const char *name;
    QString text;
    QString result; ///< with its breaks as CR LF
    qsizetype lines;
};

QList<RoundTrip> roundTrips()
{
    const auto same = [](const char *name, const QString &text) { return RoundTrip{name, text, text, 1}; };
    return {
        same("empty", QString()),
        same("letters", QStringLiteral("abc")),
        {"lone LF", QStringLiteral("a\nb"), QStringLiteral("a\r\nb"), 2},
        {"lone CR", QStringLiteral("a\rb"), QStringLiteral("a\r\nb"), 2},
        {"LF CR", QStringLiteral("a\n\rb"), QStringLiteral("a\r\n\r\nb"), 3},
        {"CR CR LF", QStringLiteral("a\r\r\nb"), QStringLiteral("a\r\n\r\nb"), 3},
        {"break at both ends", QStringLiteral("\r\na\r\n"), QStringLiteral("\r\na\r\n"), 3},
        {"only breaks", QStringLiteral("\n\n\n"), QStringLiteral("\r\n\r\n\r\n"), 4},
        {"CR at the end", QStringLiteral("a\r"), QStringLiteral("a\r\n"), 2},
        same("tabs", QStringLiteral("\ta\t\tb\t")),
        same("no-break blank", QStringLiteral("a\u00A0b\u00A0")),
        same("line separator", QStringLiteral("a\u2028b\u2028\u2028")),
        same("paragraph separator", QStringLiteral("\u2029a\u2029b")),
        same("frame marks", QStringLiteral("a\uFDD0b\uFDD1")),
        same("object mark", QStringLiteral("a\uFFFCb")),
        same("the stand-in itself", QStringLiteral("a\u2424b\u2424\u2029\u2424\u2028")),
        same("NUL", QString(QStringLiteral("a_b_")).replace(u'_', QChar(0))),
        same("surrogate pairs", QStringLiteral("a\U0001F600b\U0001F600")),
        same("lone high surrogate", QString(QStringLiteral("a_b")).replace(u'_', QChar(0xD83D))),
        same("lone low surrogate", QString(QStringLiteral("_ab_")).replace(u'_', QChar(0xDE00))),
        same("vertical tab, form feed, next line", QStringLiteral("a\u000Bb\u000Cc\u0085d")),
        same("noncharacters", QStringLiteral("a\uFFFEb\uFFFFc\uFEFF")),
        same("right to left", QStringLiteral("a \u05D0\u05D1 b")),
        {"separators beside breaks", QStringLiteral("\u2029\r\n\u2028\n\u2029"),
         QStringLiteral("\u2029\r\n\u2028\r\n\u2029"), 3},
    };
}

TEST_F(EditSurfaceTest, TextSetReadsBack)
{
    for (const RoundTrip &row : roundTrips()) {
        surface.setText(row.text);
        EXPECT_EQ(surface.Text(), row.result) << row.name;
        EXPECT_EQ(surface.textLength(), row.result.size()) << row.name;
        EXPECT_EQ(surface.lineCount(), row.lines) << row.name;
        EXPECT_EQ(selection(), Selection(0, 0)) << row.name;
    }
}

TEST_F(EditSurfaceTest, SelTextSetReadsBackInTheMidstOfText)
{
    for (const RoundTrip &row : roundTrips()) {
        surface.setText(QStringLiteral("one\r\ntwo\r\nthree"));
        select(4 + 1, 3); // "two"
        ASSERT_EQ(surface.SelText(), QStringLiteral("two"));
        surface.setSelText(row.text);
        EXPECT_EQ(surface.Text(), QStringLiteral("one\r\n") + row.result + QStringLiteral("\r\nthree")) << row.name;
        EXPECT_EQ(selection(), Selection(5 + row.result.size(), 0)) << row.name;
        EXPECT_EQ(surface.lineCount(), 2 + row.lines) << row.name;
        select(5, row.result.size());
        EXPECT_EQ(surface.SelText(), row.result) << row.name;
    }
}

TEST_F(EditSurfaceTest, EveryCodeUnitReadsBack)
{
    QString text;
    for (uint code = 0; code <= 0xFFFF; ++code) {
        if (code != '\r' && code != '\n')
            text += QChar(code);
    }
    surface.setText(text);
    EXPECT_EQ(surface.lineCount(), 1);
    EXPECT_TRUE(surface.Text() == text);
    select(0, text.size());
    EXPECT_TRUE(surface.SelText() == text);
    // Read anew from the document, too, and not only as it was put in.
    surface.setText(QString());
    surface.setSelText(text);
    EXPECT_TRUE(surface.Text() == text);
}

TEST_F(EditSurfaceTest, SeparatorsStartNoRowOfTheirOwn)
{
    surface.setText(QStringLiteral("a\u2028b\u2029c\r\nd"));
    ASSERT_EQ(surface.lineCount(), 2);
    const QRect first = surface.positionOfCharacter(0);
    EXPECT_EQ(surface.positionOfCharacter(5).top(), first.top()); // behind "c"
    EXPECT_EQ(surface.positionOfCharacter(7).top(), first.bottom() + 1);
}

TEST_F(EditSurfaceTest, SeparatorsKeepTheirCharacterThroughFormatsAndEditsAroundThem)
{
    const QString text = QStringLiteral("a\u2028b\u2029c");
    surface.setText(text);
    EXPECT_TRUE(surface.setFormat(0, 5, {0x0000FFU, true, true}));
    EXPECT_TRUE(surface.setFormat(1, 1, {WindowTextColour, false, {}}));
    EXPECT_EQ(surface.Text(), text);
    select(1, 0);
    sendCharacter(u'x');
    select(3, 0); // behind U+2028: what is typed is no separator, and a stand-in typed there neither
    sendCharacter(u'y');
    sendCharacter(u'\u2424');
    EXPECT_EQ(surface.Text(), QStringLiteral("ax\u2028y\u2424b\u2029c"));
    select(0, 8);
    EXPECT_EQ(surface.SelText(), QStringLiteral("ax\u2028y\u2424b\u2029c"));
    EXPECT_EQ(surface.lineCount(), 1);
}

TEST_F(EditSurfaceTest, TextIsTheSameStringWhileUnchanged)
{
    surface.setText(QStringLiteral("a\r\nb"));
    sendCharacter(u'x');
    const QString first = surface.Text();
    surface.setFormat(0, 3, {0x0000FFU, true, true});
    surface.setSelStart(2);
    EXPECT_EQ(surface.Text().constData(), first.constData());
}

TEST_F(EditSurfaceTest, TakesATextOfTenMegabytes)
{
    QString line = QStringLiteral("<p class=\"x\">some text\t&amp; a tail</p>\r\n");
    QString text = line.repeated(10'000'000 / static_cast<int>(line.size()));
    surface.setText(text);
    EXPECT_EQ(surface.textLength(), text.size());
    EXPECT_EQ(surface.lineCount(), text.size() / line.size() + 1);
    const qsizetype middle = text.size() / 2 / line.size() * line.size() + 3;
    EXPECT_EQ(surface.lineFromCharacter(middle), middle / line.size());
    select(middle, 0);
    for (const QChar c : QStringLiteral("new\rline"))
        sendCharacter(c);
    text.insert(middle, QStringLiteral("new\r\nline"));
    EXPECT_EQ(surface.SelStart(), middle + 9);
    EXPECT_TRUE(surface.Text() == text);
    select(text.size() - 5, 100);
    EXPECT_EQ(surface.SelLength(), 5);
    surface.setSelText(QStringLiteral("end"));
    text.replace(text.size() - 5, 5, QStringLiteral("end"));
    EXPECT_TRUE(surface.Text() == text);
}

TEST_F(EditSurfaceTest, TakesALineOfAMegabyte)
{
    QString text = QStringLiteral("<td>cell</td>").repeated(1'000'000 / 13);
    surface.setText(text);
    EXPECT_EQ(surface.lineCount(), 1);
    select(500'000, 4);
    surface.setSelText(QStringLiteral("x"));
    text.replace(500'000, 4, QStringLiteral("x"));
    EXPECT_TRUE(surface.Text() == text);
}
} // namespace
