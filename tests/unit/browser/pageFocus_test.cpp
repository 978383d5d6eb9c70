#include "browser/pageFocus.h"

#include <QApplication>
#include <QKeyEvent>
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

/// As the engine's own: it does not know where the keyboard goes on to.
class KeepingPart : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    bool focusNextPrevChild(bool) override { return true; }
};

/// What the engine does where a page gets a process of its own.
TEST_F(PageFocusTest, KeepsTheKeyboardInThePageWhenItsPartIsReplaced)
{
    for (const bool isDeleted : {false, true}) {
        auto *before = new KeepingPart(&view);
        before->setFocusPolicy(Qt::StrongFocus);
        before->show();
        before->setFocus(Qt::MouseFocusReason);
        ASSERT_TRUE(before->hasFocus());
        auto *behind = new KeepingPart(&view);
        behind->setFocusPolicy(Qt::StrongFocus);
        before->hide();
        view.setFocusProxy(behind);
        behind->show();
        if (isDeleted)
            delete before;
        QApplication::processEvents();
        EXPECT_TRUE(behind->hasFocus()) << isDeleted;
        EXPECT_TRUE(focus.isHeld());
    }
}

TEST_F(PageFocusTest, LeavesTheKeyboardWhereItWentWhenAPartOfThePageGoes)
{
    auto *part = new KeepingPart(&view);
    part->setFocusPolicy(Qt::StrongFocus);
    part->show();
    part->setFocus(Qt::MouseFocusReason);
    part->hide();
    field.setFocus(Qt::MouseFocusReason);
    QApplication::processEvents();
    EXPECT_TRUE(field.hasFocus());

    part->hide(); // without the keyboard
    QApplication::processEvents();
    EXPECT_TRUE(field.hasFocus());

    part->show();
    part->setFocus(Qt::MouseFocusReason);
    view.hide();
    QApplication::processEvents();
    EXPECT_FALSE(view.hasFocus());
}
