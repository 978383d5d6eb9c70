#include "widgets/screenPlace.h"

#include <gtest/gtest.h>

TEST(ScreenPlace, LeavesAWindowAloneWhoseTitleCanBeTakenHoldOf)
{
    const QList<QRect> rooms = {QRect(0, 0, 1000, 800), QRect(1000, 0, 1000, 800)};
    const QRect places[] = {
        QRect(60, 40, 900, 700),   QRect(900, 40, 300, 200), // across both
        QRect(1900, 40, 900, 700), QRect(-800, 0, 900, 700), // the last hundred pixels of its title
        QRect(10, 770, 300, 200),
    };
    for (const QRect &place : places)
        EXPECT_EQ(reachablePlace(place, rooms), place);
}

TEST(ScreenPlace, BringsTheOthersBackToTheNearestScreen)
{
    const QList<QRect> rooms = {QRect(0, 0, 1000, 800), QRect(1000, 0, 1000, 800)};
    const struct {
        QRect place;
        QPoint corner;
    } rows[] = {
        {QRect(2500, 100, 400, 300), QPoint(1600, 100)},
        {QRect(-500, 100, 400, 300), QPoint(0, 100)},
        {QRect(100, -40, 400, 300), QPoint(100, 0)}, // its title is above the screen
        {QRect(100, 780, 400, 300), QPoint(100, 500)},
        {QRect(3000, 3000, 1500, 900), QPoint(1000, 0)}, // larger than the screen
    };
    for (const auto &row : rows)
        EXPECT_EQ(reachablePlace(row.place, rooms), QRect(row.corner, row.place.size()));
}

TEST(ScreenPlace, HasNothingToGoByWithoutAScreen)
{
    EXPECT_EQ(reachablePlace(QRect(-500, 100, 400, 300), {}), QRect(-500, 100, 400, 300));
}

TEST(ScreenPlace, BringsAWindowThatHasGrownBackAsAWhole)
{
    const QRect room(0, 0, 1000, 800);
    EXPECT_EQ(wholePlace(QRect(300, 200, 500, 400), room), QRect(300, 200, 500, 400));
    EXPECT_EQ(wholePlace(QRect(700, 200, 500, 400), room), QRect(500, 200, 500, 400));
    EXPECT_EQ(wholePlace(QRect(700, 600, 500, 400), room), QRect(500, 400, 500, 400));
    EXPECT_EQ(wholePlace(QRect(-20, 600, 1500, 900), room), QRect(0, 0, 1500, 900)) << "its title can be reached";
}
