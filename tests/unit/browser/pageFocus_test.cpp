#include "browser/pageFocus.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace
{
/// A view with a part that its engine puts into it later, and a field beside it.
class PageFocusTest : public testing::Test
{
protected:
    PageFocusTest()
    {
        view.setFocusPolicy(Qt::StrongFocus);
        inner = new QWidget(&view);
        inner->setFocusPolicy(Qt::StrongFocus);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
    }
    void press(Qt::Key key) { send(QEvent::KeyPress, key); }
    void send(QEvent::Type type, Qt::Key key)
    {
        QKeyEvent event(type, key, Qt::NoModifier);
        QObject nobody; // who would move the keyboard by it
        QApplication::sendEvent(&nobody, &event);
    }
    qsizetype takenBy(Qt::FocusReason reason)
    {
        field.setFocus();
        taken.clear();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            press(Qt::Key_Tab);
        inner->setFocus(reason);
        QApplication::processEvents();
        return taken.count();
    }

    QWidget window;
    QLineEdit field{&window};
    QWidget view{&window};
    PageFocus focus{view};
    QSignalSpy taken{&focus, &PageFocus::taken};
    QWidget *inner = nullptr;
};
} // namespace

TEST_F(PageFocusTest, TellsWhatNobodyHasAskedFor)
{
    EXPECT_EQ(takenBy(Qt::OtherFocusReason), 1);
    EXPECT_EQ(takenBy(Qt::ActiveWindowFocusReason), 1);
}

TEST_F(PageFocusTest, LeavesThePageWhatTheUserHasPutThereUntilHeGoesElsewhere)
{
    for (const auto reason : {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason}) {
        EXPECT_EQ(takenBy(reason), 0);
        EXPECT_EQ(takenBy(Qt::OtherFocusReason), 0); // coming back with the window
        focus.release();
        EXPECT_EQ(takenBy(Qt::OtherFocusReason), 1);
    }
}

TEST_F(PageFocusTest, TakesAWindowThatHandsItsKeyboardOnForNobodysWish)
{
    // The last key was no Tab, or one that has done its work; and yet that is the reason the window gives.
    for (const auto next : {QEvent::KeyPress, QEvent::KeyRelease}) {
        field.setFocus();
        taken.clear();
        press(Qt::Key_Tab);
        send(next, next == QEvent::KeyPress ? Qt::Key_N : Qt::Key_Tab);
        inner->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_EQ(taken.count(), 1);
        EXPECT_FALSE(focus.isHeld());
    }
}
