#include "document/colourPlaces.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    const char *colours; ///< the texts of the values
};

QString found(const char *text, bool isStyleSheet)
{
    const QString source = QString::fromUtf8(text);
    QStringList values;
    for (const ColourPlace &place : colourPlaces(source, isStyleSheet))
        values.append(source.mid(place.start, place.length));
    return values.join(u'|');
}

TEST(ColourPlaces, StandInDeclarations)
{
    const Row rows[] = {
        {"#top a{color:#fff;background:#00ff0080 url(a#b.png)}", "#fff|#00ff0080"},
        {"p{border:1px solid Red}", "Red"},
        {"p{color:rgb(1, 2, 3);fill:hsl(120deg 50% 50% / .5)}", "rgb(1, 2, 3)|hsl(120deg 50% 50% / .5)"},
        {"p{background:linear-gradient(to right, #fff, black)}", "#fff|black"},
        {"p{color:#ab}", ""}, // no number of digits that is a colour
        {"p{content:\"red\";/*color:red*/}", ""},
        {"@media print{p{color:navy}}", "navy"},
        {"red{top:0}a:hover{}", ""},
        {"p{color:var(--red);--red:tan}", "tan"}, // that is a name of the author's
        {"p{color:rgb(a,b,c)}", ""},
    };
    for (const Row &row : rows)
        EXPECT_EQ(found(row.text, true), QString::fromUtf8(row.colours)) << row.text;
}

TEST(ColourPlaces, StandInStylesAndAttributesOfAPage)
{
    const Row rows[] = {
        {"<p style='color:red'>#fff red", "red"},
        {"<style>a{color:#123}</style><a href=#abc>", "#123"},
        {"<body bgcolor=#ABCDEF text=\"black\" title=red>", "#ABCDEF|black"},
        {"<script>var red = '#fff'</script>", ""},
        {"<!-- <p style='color:red'> -->", ""},
        {"<path fill='none' stroke=blue>", "blue"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(found(row.text, false), QString::fromUtf8(row.colours)) << row.text;
}

TEST(ColourPlaces, TellTheColour)
{
    const auto only = [](const char *value) {
        return colourPlaces(QStringLiteral("a{color:%1}").arg(QString::fromUtf8(value)), true).value(0).colour;
    };
    EXPECT_EQ(only("#18f"), colourOf(0x11, 0x88, 0xFF));
    EXPECT_EQ(only("#11223344"), colourOf(0x11, 0x22, 0x33));
    EXPECT_EQ(only("orange"), colourOf(0xFF, 0xA5, 0));
    EXPECT_EQ(only("rgba(300, 50%, 0, .1)"), colourOf(255, 128, 0));
    EXPECT_EQ(only("hsl(120, 100%, 50%)"), colourOf(0, 255, 0));
}

TEST(Recoloured, KeepsTheManner)
{
    const ColourValue colour = colourOf(0x12, 0xAB, 0xFF);
    const Row rows[] = {
        {"#fff", "#12abff"},
        {"#FFF", "#12ABFF"},
        {"#00000080", "#12abff80"},
        {"#0008", "#12abff88"},
        {"red", "#12abff"},
        {"rgb(0,0,0)", "rgb(18, 171, 255)"},
        {"rgba(0,0,0,.5)", "rgba(18, 171, 255, .5)"},
        {"hsl(0 0% 0% / 20%)", "rgba(18, 171, 255, 20%)"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(recoloured(QString::fromUtf8(row.text), colour), QString::fromUtf8(row.colours)) << row.text;
}
} // namespace
