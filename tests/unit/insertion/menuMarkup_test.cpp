#include "insertion/menuMarkup.h"

#include "insertion/readableColour.h"
#include "markupReader.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

MenuRow caption(const QString &text)
{
    return {.text = text};
}

MenuRow item(const QString &text, const QString &link)
{
    return {.item = true, .text = text, .link = link};
}

const QList<MenuRow> Shop{caption(str("Home")), caption(str("Products")), item(str("A"), str("a.htm")),
                          item(str("B"), str("b.htm"))};

/// What stands between two marks, each looked for behind the one before.
QString between(const QString &text, const QString &from, const QString &to)
{
    const qsizetype start = text.indexOf(from) + from.size();
    return text.mid(start, text.indexOf(to, start) - start);
}

QList<MenuRow> randomRows(QRandomGenerator &random)
{
    const auto words = [&random] { return randomWords(random).remove(u'\'').remove(u'<'); };
    QList<MenuRow> rows{caption(words())};
    for (int more = random.bounded(12); more > 0; --more)
        rows.append(random.bounded(3) == 0 ? caption(words()) : item(words(), words()));
    return rows;
}

/// The attribute's values in a text, in their order; each stands in the quotes that it is given with.
QStringList valuesOf(const QString &text, const QString &pattern)
{
    QStringList values;
    const QRegularExpression expression(pattern);
    for (auto i = expression.globalMatch(text); i.hasNext();)
        values.append(i.next().captured(1));
    return values;
}
} // namespace

// The whole of it once, to the character.
TEST(ScriptedMenu, writesTheBlocksOfAMenu)
{
    const MenuMarkup menu = scriptedMenu(
        Shop,
        {.handPointer = true, .width = str("150"), .barColour = str("#112233"), .dropDownColour = str("#445566")});
    EXPECT_EQ(menu.bar, str("<div id=\"DHTMLMenuHolder\">\r\n"
                            "<table cellspacing=0 cellpadding=0 border=0 width=\"100%\">\r\n"
                            "<tr><td width=\"100%\" bgcolor=\"#112233\" colspan=4 height=19 valign=\"middle\">\r\n"
                            "<table class=\"DHTMLMenu\" id=\"DHTMLMenu\" border=0><tr>\r\n"
                            "\r\n<td class=\"DHTMLMenuItem\" id=\"mnuItem1\">Home</td>"
                            "\r\n<td class=\"DHTMLMenuItem\" id=\"mnuItem2\">Products</td>"
                            "\r\n</tr></table></td></tr></table></div><script>drawmenu();</script>"));
    EXPECT_EQ(
        menu.head,
        str("<style>\r\n"
            "table#DHTMLMenu td.DHTMLMenuItemID {cursor: hand}\r\n"
            "div.menuitem {background-color: #445566; width: 150px; position: absolute; visibility: hidden}\r\n"
            "</style>\r\n\r\n"
            "<script language=\"JavaScript\">\r\n"
            "function drawmenu() //write menu items\r\n"
            "    {\r\n"
            "        document.writeln(\r\n"
            "        \"<div class='menuitem' id='cdeItem1'>\"+\r\n"
            "        \"</div>\"+\r\n"
            "        \"<div class='menuitem' id='cdeItem2'>\"+\r\n"
            "            \"<div>&nbsp;<a href='a.htm'>A</a>&nbsp;</div>\"+\r\n"
            "            \"<div>&nbsp;<a href='b.htm'>B</a>&nbsp;</div>\"+\r\n"
            "        \"</div>\"\r\n"
            "        );\r\n"
            "    };\r\n"
            "\r\n"
            "var menucurrentlydown;var menulastdown;var dontclose = false;var lastsource;\r\n"
            "function document.onmouseover(){if (window.event.srcElement.className == \"DHTMLMenuItem\"){var Menu = "
            "document.all[window.event.srcElement.id.replace(\"mnuItem\",\"cdeItem\")];if (menucurrentlydown && "
            "menucurrentlydown != Menu){dontclose = false;menureset(menucurrentlydown);}if (Menu){menudropdown("
            "window.event.srcElement,Menu);}}else if (menucurrentlydown && !menucurrentlydown.contains(window.event."
            "srcElement) && !DHTMLMenuHolder.contains(window.event.srcElement)){dontclose = false;menulastdown = "
            "menucurrentlydown;menucurrentlydown = null;menureset(menulastdown);}}\r\n"
            "function menudropdown(Source,Menu){if (menulastdown) menureset(menulastdown);Menu.style.visibility = "
            "\"visible\";Menu.style.top = DHTMLMenuHolder.offsetTop + DHTMLMenuHolder.offsetHeight;Menu.style.left = "
            "10+Source.offsetLeft;dontclose = true;Source.className = \"DHTMLMenuItemID\";lastsource = "
            "Source;menulastdown = null;menucurrentlydown = Menu;}\r\n"
            "function menureset(Menu){if (lastsource) lastsource.className = \"DHTMLMenuItem\";Menu.style.visibility = "
            "\"hidden\";menucurrentlydown = null;menulastdown = null;}\r\n"
            "</script>"));
}

TEST(ScriptedMenu, hasNoHandUnlessItIsAskedFor)
{
    EXPECT_TRUE(scriptedMenu(Shop, {}).head.startsWith(
        str("<style>\r\ndiv.menuitem {background-color: #C0C0C0; width: 120px; position: absolute; visibility: "
            "hidden}\r\n</style>\r\n\r\n<script")));
}

TEST(ScriptedMenu, writesTextsAsTheyStand)
{
    const MenuMarkup menu = scriptedMenu({caption(str("<b>\"%1\"</b>")), item(str("it's"), str("a'b\"c"))}, {});
    EXPECT_TRUE(menu.bar.contains(str("id=\"mnuItem1\"><b>\"%1\"</b></td>")));
    EXPECT_TRUE(menu.head.contains(str("\"<div>&nbsp;<a href='a'b\"c'>it's</a>&nbsp;</div>\"+")));
}

TEST(ScriptedMenu, aRandomMenuReadsBackAsItsRows)
{
    QRandomGenerator random(70);
    for (int i = 0; i < 5000; ++i) {
        const QList<MenuRow> rows = randomRows(random);
        const MenuMarkup menu = scriptedMenu(rows, {});
        const QString script = between(menu.head, str("document.writeln("), str("        );"));
        QList<MenuRow> read;
        QSet<QString> ids;
        for (const QString &line : script.split(str("\r\n"))) {
            const QString box = between(line, str("<div class='menuitem' id='cdeItem"), str("'>"));
            if (line.contains(str("class='menuitem'"))) {
                const QString cell = str("<td class=\"DHTMLMenuItem\" id=\"mnuItem%1\">").arg(box);
                ASSERT_TRUE(menu.bar.contains(cell));
                ASSERT_EQ(box.toInt(), read.size() + 1);
                ids.insert(box);
                read.append(caption(between(menu.bar, cell, str("</td>"))));
            } else if (line.contains(str("<a href='"))) {
                read.append(item(between(line, str("'>"), str("</a>")), between(line, str("<a href='"), str("'>"))));
            }
        }
        ASSERT_EQ(read, rows);
        ASSERT_EQ(ids.size(), menu.bar.count(str("<td class=")));
        ASSERT_EQ(script.count(str("<div")), script.count(str("</div>")));
        ASSERT_EQ(menu.bar.count(str("<td")), menu.bar.count(str("</td>")));
    }
}

TEST(PlainMenu, writesNestedLists)
{
    EXPECT_EQ(plainMenu(Shop, {}).bar, str("<nav id=\"DHTMLMenu\">\r\n"
                                           "<ul>\r\n"
                                           "    <li><button type=\"button\">Home</button></li>\r\n"
                                           "    <li><button type=\"button\">Products</button>\r\n"
                                           "        <ul>\r\n"
                                           "            <li><a href=\"a.htm\">A</a></li>\r\n"
                                           "            <li><a href=\"b.htm\">B</a></li>\r\n"
                                           "        </ul>\r\n"
                                           "    </li>\r\n"
                                           "</ul>\r\n"
                                           "</nav>"));
}

TEST(PlainMenu, opensUnderThePointerAndTheFocusWithoutAScript)
{
    const MenuMarkup menu = plainMenu(
        Shop,
        {.handPointer = true, .width = str("150"), .barColour = str("#000080"), .dropDownColour = str("#FFFFC0")});
    EXPECT_TRUE(menu.head.startsWith(str("<style>\r\n")) && menu.head.endsWith(str("\r\n</style>")));
    EXPECT_TRUE(menu.head.contains(str("{background-color: #000080; color: #FFFFFF}")));
    EXPECT_TRUE(menu.head.contains(str("width: 150px; background-color: #FFFFC0; color: #000000}")));
    EXPECT_TRUE(menu.head.contains(str("; cursor: pointer}")));
    EXPECT_TRUE(menu.head.contains(str("#DHTMLMenu li:hover > ul, #DHTMLMenu li:focus-within > ul {display: block}")));
    EXPECT_FALSE((menu.head + menu.bar).contains(str("script")));
    EXPECT_FALSE(plainMenu(Shop, {}).head.contains(str("cursor")));
}

TEST(PlainMenu, aRandomMenuReadsBackAsItsRows)
{
    QRandomGenerator random(71);
    for (int i = 0; i < 5000; ++i) {
        const QList<MenuRow> rows = randomRows(random);
        const QString bar = plainMenu(rows, {}).bar;
        QList<MenuRow> read;
        for (const ReadElement &element : elementsOf(bar)) {
            const QString text = bar.mid(element.end, bar.indexOf(u'<', element.end) - element.end);
            if (element.name == u"button")
                read.append(caption(text));
            else if (element.name == u"a")
                read.append(item(text, element.attributes.value(str("href"))));
        }
        ASSERT_EQ(read, rows);
        ASSERT_EQ(valuesOf(bar, str(" id=\"([^\"]*)\"")), QStringList{str("DHTMLMenu")});
        for (const char *tag : {"ul>", "li>", "button", "nav"})
            ASSERT_EQ(bar.count(u'<' + str(tag)), bar.count(str("</") + str(tag))) << tag;
    }
}

TEST(HeadPlace, goesByTheEndOfTheHeadThenTheBodyThenTheStart)
{
    const struct {
        const char *page;
        qsizetype place;
    } rows[] = {
        {"", 0},
        {"<p>", 0},
        {"<head></head><body>", 6},
        {"<HEAD></HEAD><BODY>", 6},
        {"<HEAD></Head ><p></head>", 17}, // the exact spelling, wherever
        {"x<body>", 1},
        {"x<BODY class=a>", 1},
        {"<body>", 0},
        {"</HEAD>x<body>", 8},
        {"</head>x<body>", 0},
        {"</HEAD></HEAD>", 0},
        {"<p></header>", 3},
    };
    for (const auto &row : rows)
        EXPECT_EQ(headPlace(str(row.page)), row.place) << row.page;
}

TEST(ReadableColour, isTheOneWithTheGreaterContrast)
{
    const ColourValue black = 0;
    const ColourValue white = 0xFFFFFF;
    EXPECT_EQ(readableColour(black), white);
    EXPECT_EQ(readableColour(white), black);
    EXPECT_EQ(readableColour(colourOf(0x80, 0x80, 0xFF)), black); // luminance 0.27
    EXPECT_EQ(readableColour(colourOf(0, 0, 0xFF)), white);       // 0.07
    EXPECT_EQ(readableColour(colourOf(0xFF, 0, 0)), black);       // 0.21
    EXPECT_EQ(readableColour(colourOf(0x75, 0x75, 0x75)), white); // 0.178
    EXPECT_EQ(readableColour(colourOf(0x76, 0x76, 0x76)), black); // 0.181
}
