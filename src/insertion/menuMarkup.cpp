#include "insertion/menuMarkup.h"

#include "common/colourText.h"
#include "common/text.h"
#include "insertion/readableColour.h"

#include <utility>

namespace
{
const QString Break = QStringLiteral("\r\n");
const QString Variables =
    QStringLiteral("var menucurrentlydown;var menulastdown;var dontclose = false;var lastsource;");
const QString MouseOverFunction = QStringLiteral(
    "function document.onmouseover(){if (window.event.srcElement.className == \"DHTMLMenuItem\"){"
    "var Menu = document.all[window.event.srcElement.id.replace(\"mnuItem\",\"cdeItem\")];"
    "if (menucurrentlydown && menucurrentlydown != Menu){dontclose = false;menureset(menucurrentlydown);}"
    "if (Menu){menudropdown(window.event.srcElement,Menu);}}"
    "else if (menucurrentlydown && !menucurrentlydown.contains(window.event.srcElement) && "
    "!DHTMLMenuHolder.contains(window.event.srcElement)){"
    "dontclose = false;menulastdown = menucurrentlydown;menucurrentlydown = null;menureset(menulastdown);"
    "}}");
const QString DropDownFunction =
    QStringLiteral("function menudropdown(Source,Menu){if (menulastdown) menureset(menulastdown);"
                   "Menu.style.visibility = \"visible\";"
                   "Menu.style.top = DHTMLMenuHolder.offsetTop + DHTMLMenuHolder.offsetHeight;"
                   "Menu.style.left = 10+Source.offsetLeft;dontclose = true;Source.className = \"DHTMLMenuItemID\";"
                   "lastsource = Source;menulastdown = null;menucurrentlydown = Menu;}");
const QString ResetFunction =
    QStringLiteral("function menureset(Menu){if (lastsource) lastsource.className = \"DHTMLMenuItem\";"
                   "Menu.style.visibility = \"hidden\";menucurrentlydown = null;menulastdown = null;}");

QString scriptStyle(const MenuStyle &style)
{
    const QString hand =
        style.handPointer ? QStringLiteral("table#DHTMLMenu td.DHTMLMenuItemID {cursor: hand}") + Break : QString();
    return QStringLiteral("<style>") + Break + hand + QStringLiteral("div.menuitem {background-color: ") +
           style.dropDownColour + QStringLiteral("; width: ") + style.width +
           QStringLiteral("px; position: absolute; visibility: hidden}") + Break + QStringLiteral("</style>") + Break +
           Break;
}

/// The boxes, as the strings that the script writes.
QString scriptBoxes(const QList<MenuRow> &rows)
{
    QString text;
    bool boxOpen = false;
    for (int row = 0; row < rows.size(); ++row) {
        if (rows[row].item) {
            text += Break + QStringLiteral("            \"<div>&nbsp;<a href='") + rows[row].link +
                    QStringLiteral("'>") + rows[row].text + QStringLiteral("</a>&nbsp;</div>\"+");
            continue;
        }
        if (std::exchange(boxOpen, true))
            text += Break + QStringLiteral("        \"</div>\"+");
        text += Break + QStringLiteral("        \"<div class='menuitem' id='cdeItem%1'>\"+").arg(row + 1);
    }
    return text;
}

QString scriptBar(const QList<MenuRow> &rows, const QString &colour)
{
    QString text = QStringLiteral("<div id=\"DHTMLMenuHolder\">") + Break +
                   QStringLiteral("<table cellspacing=0 cellpadding=0 border=0 width=\"100%\">") + Break +
                   QStringLiteral("<tr><td width=\"100%\" bgcolor=\"") + colour +
                   QStringLiteral("\" colspan=4 height=19 valign=\"middle\">") + Break +
                   QStringLiteral("<table class=\"DHTMLMenu\" id=\"DHTMLMenu\" border=0><tr>") + Break;
    for (int row = 0; row < rows.size(); ++row)
        if (!rows[row].item)
            text += Break + QStringLiteral("<td class=\"DHTMLMenuItem\" id=\"mnuItem%1\">").arg(row + 1) +
                    rows[row].text + QStringLiteral("</td>");
    return text + Break + QStringLiteral("</tr></table></td></tr></table></div><script>drawmenu();</script>");
}

QString readableOn(const QString &ground)
{
    return colourText(readableColour(colourFromText(ground).value_or(0)));
}

QString plainStyle(const MenuStyle &style)
{
    const QStringList rules{
        QStringLiteral("#DHTMLMenu {background-color: %1; color: %2}")
            .arg(style.barColour, readableOn(style.barColour)),
        QStringLiteral("#DHTMLMenu ul {list-style: none; margin: 0; padding: 0}"),
        QStringLiteral("#DHTMLMenu > ul {display: flex; flex-wrap: wrap}"),
        QStringLiteral("#DHTMLMenu > ul > li {position: relative}"),
        QStringLiteral("#DHTMLMenu button, #DHTMLMenu a {font: inherit; color: inherit; padding: 4px 8px%1}")
            .arg(style.handPointer ? QStringLiteral("; cursor: pointer") : QString()),
        QStringLiteral("#DHTMLMenu button {background: none; border: none}"),
        QStringLiteral("#DHTMLMenu a {display: block}"),
        QStringLiteral("#DHTMLMenu li ul {display: none; position: absolute; z-index: 1; width: %1px; "
                       "background-color: %2; color: %3}")
            .arg(style.width, style.dropDownColour, readableOn(style.dropDownColour)),
        QStringLiteral("#DHTMLMenu li:hover > ul, #DHTMLMenu li:focus-within > ul {display: block}"),
    };
    return QStringLiteral("<style>") + Break + rules.join(Break) + Break + QStringLiteral("</style>");
}

/// A caption's own list is open between its first item and its last.
QString plainBar(const QList<MenuRow> &rows)
{
    QString text = QStringLiteral("<nav id=\"DHTMLMenu\">") + Break + QStringLiteral("<ul>");
    for (int row = 0; row < rows.size(); ++row) {
        const bool opens = !rows[row].item && row + 1 < rows.size() && rows[row + 1].item;
        const bool ends = row + 1 == rows.size() || !rows[row + 1].item;
        if (rows[row].item)
            text += Break + QStringLiteral("            <li><a href=\"") + rows[row].link + QStringLiteral("\">") +
                    rows[row].text + QStringLiteral("</a></li>");
        else
            text += Break + QStringLiteral("    <li><button type=\"button\">") + rows[row].text +
                    QStringLiteral("</button>");
        if (opens)
            text += Break + QStringLiteral("        <ul>");
        else if (ends && rows[row].item)
            text += Break + QStringLiteral("        </ul>") + Break + QStringLiteral("    </li>");
        else if (ends)
            text += QStringLiteral("</li>");
    }
    return text + Break + QStringLiteral("</ul>") + Break + QStringLiteral("</nav>");
}
} // namespace

MenuMarkup scriptedMenu(const QList<MenuRow> &rows, const MenuStyle &style)
{
    const QString script = QStringLiteral("<script language=\"JavaScript\">") + Break +
                           QStringLiteral("function drawmenu() //write menu items") + Break + QStringLiteral("    {") +
                           Break + QStringLiteral("        document.writeln(") + scriptBoxes(rows) + Break +
                           QStringLiteral("        \"</div>\"") + Break + QStringLiteral("        );") + Break +
                           QStringLiteral("    };") + Break + Break + Variables + Break + MouseOverFunction + Break +
                           DropDownFunction + Break + ResetFunction + Break + QStringLiteral("</script>");
    return {.head = scriptStyle(style) + script, .bar = scriptBar(rows, style.barColour)};
}

MenuMarkup plainMenu(const QList<MenuRow> &rows, const MenuStyle &style)
{
    return {.head = plainStyle(style), .bar = plainBar(rows)};
}

qsizetype headPlace(const QString &page)
{
    const QString lower = LCase(page);
    const qsizetype exact = page.indexOf(QLatin1String("</head"));
    if (exact >= 0)
        return exact;
    for (const QLatin1String mark : {QLatin1String("</head"), QLatin1String("<body")})
        if (const qsizetype place = lower.indexOf(mark); place > 0)
            return place;
    return 0;
}
