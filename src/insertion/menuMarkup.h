#pragma once

#include "insertion/menuRows.h"

/// What a menu looks like. Colours are texts as pages have them, the width is the text of its box, in pixels.
struct MenuStyle {
    bool handPointer = false;
    QString width = QStringLiteral("120"); ///< of the boxes that drop down
    QString barColour = QStringLiteral("#8080FF");
    QString dropDownColour = QStringLiteral("#C0C0C0");
};

/// The two pieces of a menu: what goes in front of the end of the page's head, and the bar where the menu stands.
struct MenuMarkup {
    QString head;
    QString bar;
};

/// The menu as a table whose boxes a script writes and opens. The script was written for the browsers of its day.
///
/// Rows are numbered from 1, captions and items alike, and a caption's cell and box bear its number. A caption has a
/// box even without items.
MenuMarkup scriptedMenu(const QList<MenuRow> &rows, const MenuStyle &style);

/// The same menu as nested lists with a style sheet, for the browsers of today: it opens under the pointer and, with
/// the keyboard, as soon as the focus is in it.
MenuMarkup plainMenu(const QList<MenuRow> &rows, const MenuStyle &style);

/// Where in a page the head piece goes, from 0, as one after the other is found: in front of "</head", spelt exactly
/// so, wherever it stands; in front of its first spelling in any case, unless the text begins with it; in front of
/// "<body" likewise; at the start.
qsizetype headPlace(const QString &page);
