#include "widgets/screenPointer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QWidget>

namespace
{
constexpr int LongWait = 300; // ms

int shape()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : -1;
}
} // namespace

TEST(ScreenPointer, theHourglassComesAtOnceAndGoes)
{
    QWidget window;
    window.show();
    ScreenPointer pointer;
    pointer.setMousePointer(PointerShape::Hourglass);
    EXPECT_EQ(shape(), Qt::WaitCursor);
    pointer.setMousePointer(PointerShape::Default);
    EXPECT_EQ(shape(), -1);
}

TEST(ScreenPointer, theArrowWithTheHourglassIsForWaitsThatAreSeen)
{
    QWidget window;
    window.show();
    ScreenPointer pointer;
    pointer.setMousePointer(PointerShape::ArrowHourglass);
    EXPECT_EQ(pointer.MousePointer(), PointerShape::ArrowHourglass);
    EXPECT_EQ(shape(), -1);
    QTest::qWait(LongWait);
    EXPECT_EQ(shape(), Qt::BusyCursor);
    pointer.setMousePointer(PointerShape::Hourglass);
    EXPECT_EQ(shape(), Qt::WaitCursor) << "it takes the other's place";
    pointer.setMousePointer(PointerShape::ArrowHourglass);
    pointer.setMousePointer(PointerShape::Default);
    QTest::qWait(LongWait);
    EXPECT_EQ(shape(), -1) << "what was over in time is not told of later";
}

TEST(ScreenPointer, noneIsShownBesideASplashScreenAlone)
{
    QWidget splash(nullptr, Qt::SplashScreen);
    splash.show();
    ScreenPointer pointer;
    pointer.setMousePointer(PointerShape::Hourglass);
    EXPECT_EQ(pointer.MousePointer(), PointerShape::Hourglass);
    EXPECT_EQ(shape(), -1);
    pointer.setMousePointer(PointerShape::Default);
    EXPECT_EQ(shape(), -1);
}

TEST(ScreenPointer, itGoesWithWhoSetIt)
{
    QWidget window;
    window.show();
    {
        ScreenPointer pointer;
        pointer.setMousePointer(PointerShape::Hourglass);
    }
    EXPECT_EQ(shape(), -1);
}
