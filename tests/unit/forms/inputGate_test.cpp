#include "forms/inputGate.h"

#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
class InputGateTest : public testing::Test
{
protected:
    void SetUp() override
    {
        window.setCentralWidget(edit);
        QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&File"));
        QAction *save = menu->addAction(QStringLiteral("&Save"), &window, [this] { ++saves; });
        save->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
        window.show();
        window.activateWindow();
        edit->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QMainWindow window;
    QLineEdit *edit = new QLineEdit;
    int saves = 0;
    int refusals = 0;
    InputGate gate{window, [this] { ++refusals; }};
};

TEST_F(InputGateTest, LetsInputThroughWhileOpen)
{
    QTest::keyClicks(edit, QStringLiteral("ab"));
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    EXPECT_EQ(saves, 1);
}

TEST_F(InputGateTest, StopsKeysShortcutsAndTheMouseWithoutMovingTheFocus)
{
    gate.setOpen(false);
    QTest::keyClicks(edit, QStringLiteral("ab"));
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    QTest::mouseClick(edit, Qt::LeftButton);
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(saves, 0);
    EXPECT_GE(refusals, 1);
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_TRUE(edit->isEnabled()) << "no widget is disabled";
    gate.setOpen(true);
    QTest::keyClicks(edit, QStringLiteral("c"));
    EXPECT_EQ(edit->text(), QStringLiteral("c"));
}

TEST_F(InputGateTest, LeavesTheWindowsDialogsAlone)
{
    gate.setOpen(false);
    QDialog dialog(&window);
    auto *field = new QLineEdit(&dialog);
    dialog.show();
    QTest::keyClicks(field, QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("x"));
}

TEST_F(InputGateTest, LetsTheProgramWorkBehindIt)
{
    gate.setOpen(false);
    edit->setText(QStringLiteral("by the program"));
    EXPECT_EQ(edit->text(), QStringLiteral("by the program"));
}
} // namespace
