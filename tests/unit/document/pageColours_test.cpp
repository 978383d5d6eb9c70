#include "document/pageColours.h"

#include <gtest/gtest.h>

namespace
{
const ColouringOptions Options;
const Habits Today{.HabitScripts = true};

/// A letter for each character of a text: T tag, A attribute, V value, C comment, S server code, L link, "." text.
QString lettersOf(const QList<FormatRange> &formats, qsizetype length)
{
    QString letters(length, u'?');
    for (const FormatRange &range : formats) {
        const ColourValue colour = range.format.colour.value_or(0);
        const QChar letter = colour == Options.ColourCodeTag         ? u'T'
                             : colour == Options.ColourCodeAttribute ? u'A'
                             : colour == Options.ColourCodeValue     ? u'V'
                             : colour == Options.ColourCodeComment   ? u'C'
                             : colour == Options.ColourASPCode       ? u'S'
                             : colour == Options.ColourCodeURL       ? u'L'
                                                                     : u'.';
        for (qsizetype i = range.start; i < range.start + range.length; ++i)
            letters[i] = letter;
    }
    return letters;
}

QString letters(const char *text)
{
    const QString page = QString::fromLatin1(text);
    return lettersOf(*pageFormats(page, Options, Today), page.size());
}

struct Row {
    const char *text;
    const char *letters;
};

void expectRows(std::initializer_list<Row> rows)
{
    for (const Row &row : rows)
        EXPECT_EQ(letters(row.text), QString::fromLatin1(row.letters)) << row.text;
}
} // namespace

TEST(PageColours, OfTagsAttributesValuesAndComments)
{
    expectRows({
        {"", ""},
        {"a<p>b", ".TTT."},
        {"<p id=\"x\" b>", "TTTAAAVVVAAT"},
        {"</p><!-- <b> -->c", "TTTTCCCCCCCCCCCC."},
        {"<!DOCTYPE html>", "TTTTTTTTTTAAAAT"},
        {"a<%=b%>c", ".SSSSSS."},
        {"see www.a.b ", "....LLLLLLL."},
    });
}

TEST(PageColours, TakeWhatStandsInAValueForNoTag)
{
    expectRows({{"<p id=\"<b>\">a", "TTTAAAVVVVVT."}, {"a < b <i>", "......TTT"}});
}

TEST(PageColours, OfCharacterReferences)
{
    expectRows({{"a&amp;b&c &#65;", ".AAAAA....AAAAA"}, {"<p id=\"&lt;\">", "TTTAAAVAAAAVT"}});
}

TEST(PageColours, OfScripts)
{
    expectRows({
        {"<script>if (a<b) \"</p>\" // <i>\n</script>c", "TTTTTTTTTT.......VVVVVV.CCCCCC.TTTTTTTTT."},
        {"<script>a=1/2/3;b=/x\"/g</script>", "TTTTTTTT..A.A.A...VVVVV"
                                              "TTTTTTTTT"},
        {"<script>/* a */`b\n${c}`</script>", "TTTTTTTTCCCCCCCVVVVVVVV"
                                              "TTTTTTTTT"},
    });
}

TEST(PageColours, OfStyles)
{
    expectRows({
        {"<style>a:hover{b:c}/*d*/</style>", "TTTTTTTTTTTTTT.A.V.CCCCCTTTTTTTT"},
        {"<style>@media x{p{q:\"r\"}}</style>", "TTTTTTTTTTTTT.T.T.A.VVV..TTTTTTTT"},
    });
}

TEST(PageColours, TakeScriptsForMarkupWhereTheyAreNotRead)
{
    const QString page = QStringLiteral("<script>a<b>c</script>");
    PageColours colours(page, Options, Habits());
    EXPECT_EQ(lettersOf(colours.advance(page.size()), page.size()), QStringLiteral("TTTTTTTT.TTT.TTTTTTTTT"));
}

TEST(PageColours, AreTheSameInPiecesAndFromNearby)
{
    QString page;
    for (int i = 0; i < 2000; ++i)
        page +=
            QStringLiteral("<p class=\"c%1\">text &amp; more</p>\r\n<script>\r\nvar a = \"<b>\"; // %1\r\n</script>\r\n"
                           "<!-- <i>\r\n%1 -->\r\n<style>\r\na { b: c }\r\n</style>\r\n")
                .arg(i);
    const QString whole = lettersOf(*pageFormats(page, Options, Today), page.size());
    for (const qsizetype piece : {1, 7, 100, 5000}) {
        PageColours colours(page, Options, Today);
        QList<FormatRange> formats;
        while (!colours.isAtEnd())
            formats += colours.advance(colours.place() + piece);
        EXPECT_EQ(lettersOf(formats, page.size()), whole) << piece;
    }
    for (qsizetype at = 0; at < page.size(); at += 997) {
        PageColours colours(page, Options, Today);
        colours.startNear(at);
        EXPECT_LE(colours.place(), at);
        const qsizetype from = colours.place();
        const QString near = lettersOf(colours.advance(at + 500), page.size());
        EXPECT_EQ(near.mid(from, colours.place() - from), whole.mid(from, colours.place() - from)) << at;
    }
}

TEST(FormatsNearby, AreThoseOfTheWholeTextAndNoOthers)
{
    QString page;
    for (int i = 0; i < 2000; ++i)
        page += QStringLiteral("<p class=\"c%1\">text <%= %1 %> more</p>\r\n<SCRIPT>\r\nvar a = \"<b>\"; // %1\r\n"
                               "</SCRIPT>\r\n<!-- <i>\r\n%1 www.a -->\r\n")
                    .arg(i);
    const QString whole = lettersOf(*pageFormats(page, Options, Today), page.size());
    for (qsizetype at = 0; at < page.size(); at += 997) {
        const qsizetype from = page.lastIndexOf(u'\n', at) + 1;
        const qsizetype to = std::min(from + 3000, page.size());
        const QList<FormatRange> formats = formatsNearby(page, from, to, Options, Today);
        qsizetype covered = from;
        for (const FormatRange &range : formats) {
            EXPECT_EQ(range.start, covered);
            covered += range.length;
        }
        EXPECT_EQ(covered, to) << from;
        EXPECT_EQ(lettersOf(formats, page.size()).mid(from, to - from), whole.mid(from, to - from)) << from;
    }
}

TEST(FormatsNearby, EndWithinOneLongThing)
{
    const QString filler(300'000, u'x');
    for (const char *opening : {"<!--", "<p id=\"", "<script>", "<p>", "<% "}) {
        const QString page = QLatin1String(opening) + filler;
        for (const qsizetype from : {0, 1000, 200'000}) {
            const QList<FormatRange> formats = formatsNearby(page, from, from + 5000, Options, Today);
            ASSERT_FALSE(formats.isEmpty()) << opening;
            EXPECT_EQ(formats.first().start, from) << opening;
            EXPECT_EQ(formats.last().start + formats.last().length, from + 5000) << opening;
        }
    }
}

TEST(PageColours, GoOnWhereAPageHoldsOneLongThing)
{
    const QString filler(100'000, u'x');
    const QString page = QStringLiteral("<!--") + filler + QStringLiteral("--><p id=\"") + filler +
                         QStringLiteral("\">") + filler + QStringLiteral("<script>'a';") + filler +
                         QStringLiteral("</script><i");
    PageColours colours(page, Options, Today);
    qsizetype covered = 0;
    while (!colours.isAtEnd())
        for (const FormatRange &range : colours.advance(colours.place() + 1000)) {
            EXPECT_EQ(range.start, covered);
            covered = range.start + range.length;
        }
    EXPECT_EQ(covered, page.size());
}
