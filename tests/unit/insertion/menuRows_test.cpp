#include "insertion/menuRows.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

MenuRow caption(const char *text)
{
    return {.text = str(text)};
}

MenuRow item(const char *text, const char *link = "")
{
    return {.item = true, .text = str(text), .link = str(link)};
}

/// A menu of those rows, put in as a user does, with the last one selected.
MenuRows menuOf(const QList<MenuRow> &wanted)
{
    MenuRows rows;
    for (const MenuRow &row : wanted) {
        rows.addNew();
        if (row.item)
            rows.makeItem();
        else
            rows.makeCaption();
        rows.setText(row.text);
        rows.setLink(row.link);
    }
    return rows;
}
} // namespace

TEST(MenuRows, beginWithABlankCaption)
{
    const MenuRows rows;
    EXPECT_EQ(rows.rows(), QList<MenuRow>{caption("")});
    EXPECT_EQ(rows.selected(), 0);
}

TEST(MenuRows, showAnItemBehindItsMark)
{
    EXPECT_EQ(shownText(item("A")), str("···A"));
    EXPECT_EQ(shownText(item("")), str("···"));
    EXPECT_EQ(shownText(caption("A")), str("A"));
    EXPECT_EQ(menuItemMark(), QString(3, QChar(0xB7)));
}

TEST(MenuRows, aNewRowTakesTheKindOfTheOneAbove)
{
    MenuRows rows = menuOf({caption("A")});
    rows.addNew();
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), caption("")}));
    EXPECT_EQ(rows.selected(), 1);
    EXPECT_FALSE(rows.makeItem());
    rows.setText(str("a"));
    rows.addNew();
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), item("a"), item("")}));
}

TEST(MenuRows, aBlankLastRowIsTakenInPlaceOfANewOne)
{
    MenuRows rows = menuOf({caption("A"), caption("")});
    rows.makeItem();
    rows.select(0);
    rows.addNew();
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), caption("")})); // as the row above is
    EXPECT_EQ(rows.selected(), 1);
    rows.setLink(str("x.htm"));
    rows.select(0);
    rows.insertAbove();
    EXPECT_EQ(rows.rows().size(), 2); // a link alone leaves a row blank
    EXPECT_EQ(rows.selected(), 1);
    rows.setText(str("..."));
    rows.addNew();
    EXPECT_EQ(rows.rows().size(), 3); // three dots of another kind are a text
}

TEST(MenuRows, aRowInsertedAboveIsACaption)
{
    MenuRows rows = menuOf({caption("A"), item("a"), item("b")});
    rows.select(2);
    rows.insertAbove();
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), item("a"), caption(""), item("b")}));
    EXPECT_EQ(rows.selected(), 2);
}

TEST(MenuRows, onlyTheFirstRowCannotBeAnItem)
{
    MenuRows rows = menuOf({caption("A"), caption("B")});
    rows.select(0);
    EXPECT_EQ(rows.makeItem(), str("The first item in the menu list must be a menu caption."));
    EXPECT_EQ(rows.row(), caption("A"));
    rows.select(1);
    EXPECT_EQ(rows.makeItem(), std::nullopt);
    EXPECT_EQ(rows.row(), item("B"));
}

TEST(MenuRows, aCaptionKeepsTheLinkThatItHadAsAnItem)
{
    MenuRows rows = menuOf({caption("A"), item("a", "a.htm")});
    rows.makeCaption();
    EXPECT_EQ(rows.row(), (MenuRow{.text = str("a"), .link = str("a.htm")}));
    rows.makeItem();
    EXPECT_EQ(rows.row(), item("a", "a.htm"));
}

TEST(MenuRows, deletingLeavesACaptionAtTheTop)
{
    MenuRows rows = menuOf({caption("A"), item("a"), caption("B")});
    rows.select(0);
    EXPECT_EQ(rows.remove(), str("You are about to delete a menu caption. The item below it is a menu item. You must "
                                 "convert this menu item to a menu caption before you can continue."));
    EXPECT_EQ(rows.rows().size(), 3);
    EXPECT_EQ(rows.selected(), 0);
    rows.select(1);
    EXPECT_EQ(rows.remove(), std::nullopt);
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), caption("B")}));
    EXPECT_EQ(rows.selected(), 1);
    rows.select(0);
    EXPECT_EQ(rows.remove(), std::nullopt);
    EXPECT_EQ(rows.remove(), std::nullopt);
    EXPECT_EQ(rows.rows(), QList<MenuRow>{caption("")});
    EXPECT_EQ(rows.selected(), 0);
}

TEST(MenuRows, movingLeavesACaptionAtTheTop)
{
    MenuRows rows = menuOf({caption("A"), item("a", "x"), caption("B")});
    rows.select(0);
    EXPECT_EQ(rows.moveUp(), std::nullopt);
    EXPECT_EQ(rows.moveDown(),
              str("You are about to move the top menu caption down in the list. This action will expose the menu item "
                  "below it. You must first change the menu item to a menu caption before you continue."));
    rows.select(1);
    EXPECT_EQ(rows.moveUp(), str("You are about to move a menu item to the top of the list. The first menu item must "
                                 "be a menu caption."));
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), item("a", "x"), caption("B")}));
    EXPECT_EQ(rows.moveDown(), std::nullopt);
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), caption("B"), item("a", "x")}));
    EXPECT_EQ(rows.selected(), 2);
    EXPECT_EQ(rows.moveDown(), std::nullopt); // the last row
    rows.select(1);
    EXPECT_EQ(rows.moveUp(), std::nullopt);
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("B"), caption("A"), item("a", "x")}));
    EXPECT_EQ(rows.selected(), 0);
    EXPECT_EQ(rows.moveDown(), std::nullopt);
    EXPECT_EQ(rows.rows(), QList<MenuRow>({caption("A"), caption("B"), item("a", "x")}));
}

TEST(MenuRows, takeNoRowThatIsNotThere)
{
    MenuRows rows = menuOf({caption("A"), caption("B")});
    rows.select(2);
    rows.select(-1);
    EXPECT_EQ(rows.selected(), 1);
}

TEST(MenuRows, whateverIsDoneTheFirstRowIsACaption)
{
    QRandomGenerator random(69);
    for (int i = 0; i < 500; ++i) {
        MenuRows rows;
        for (int step = 0; step < 40; ++step) {
            switch (random.bounded(9)) {
            case 0:
                rows.makeCaption();
                break;
            case 1:
                rows.makeItem();
                break;
            case 2:
                rows.insertAbove();
                break;
            case 3:
                rows.remove();
                break;
            case 4:
                rows.moveUp();
                break;
            case 5:
                rows.moveDown();
                break;
            case 6:
                rows.select(random.bounded(static_cast<int>(rows.rows().size())));
                break;
            default:
                rows.addNew();
                rows.setText(QString::number(step));
            }
            ASSERT_FALSE(rows.rows().isEmpty());
            ASSERT_FALSE(rows.rows().front().item);
            ASSERT_TRUE(rows.selected() >= 0 && rows.selected() < rows.rows().size());
        }
    }
}
