#include "widgets/characterGrid.h"
#include "widgets/controls.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <gmock/gmock.h>
#include <memory>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// It would outlive the calendar otherwise.
TEST(Calendar, DropsADateThatIsBeingTypedWhenItGoes)
{
    const std::unique_ptr<QCalendarWidget> calendar(ui::calendar(str("monDate")));
    calendar->show();
    const qsizetype before = calendar->findChildren<QLabel *>().size();
    QTest::keyClick(calendar->findChild<QWidget *>(str("qt_calendar_calendarview")), Qt::Key_1);
    EXPECT_EQ(calendar->findChildren<QLabel *>().size(), before + 1) << "the date over the days";
    calendar->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(calendar->findChildren<QLabel *>().size(), before);
}

class SpinButtonTest : public testing::Test
{
protected:
    SpinButtonTest()
    {
        field.setText(str("2"));
        field.show();
        spin.show();
    }

    NumberField field{3};
    SpinButton spin{&field, 1, 3};
};

TEST_F(SpinButtonTest, CountsItsBuddyWithinTheLimits)
{
    QTest::mouseClick(spin.upButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("3"));
    QTest::mouseClick(spin.upButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("3")) << "it does not start over";
    for (int i = 0; i < 4; ++i)
        QTest::mouseClick(spin.downButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("1"));
}

TEST_F(SpinButtonTest, CountsByTheArrowKeysOfItsBuddy)
{
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.text(), str("3"));
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.text(), str("2"));
    spin.setEnabled(false);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.text(), str("2"));
}

TEST_F(SpinButtonTest, CountsFromTheLimitsWhereTheBuddyIsOutsideThem)
{
    field.clear();
    QTest::mouseClick(spin.upButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("2"));
    field.setText(str("900"));
    EXPECT_EQ(spin.Value(), 3);
    QTest::mouseClick(spin.downButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("2"));
    field.setText(str("9876543210"));
    EXPECT_EQ(spin.Value(), 3) << "more than the limits could hold";
}

TEST(SpinButton, CountsNoFurtherThanItsLimitsWhereTheseAreTheLargestNumbers)
{
    NumberField field(20);
    SpinButton spin(&field, INT_MIN, INT_MAX);
    field.setText(str("99999999999"));
    QTest::mouseClick(spin.upButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("2147483647"));
    QTest::mouseClick(spin.downButton(), Qt::LeftButton);
    EXPECT_EQ(field.text(), str("2147483646"));
    field.setText(str("-99999999999"));
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.text(), str("-2147483648"));
}

TEST(NumberField, TakesDigitsFromTheKeyboardOnly)
{
    NumberField field(3);
    field.show();
    QTest::keyClicks(&field, str("a1-2b.3e4"));
    EXPECT_EQ(field.text(), str("123"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), str("12"));
    field.setText(str("ab")); // the program, or the clipboard, is not bound
    EXPECT_EQ(field.text(), str("ab"));
}

// Some input sources send the letter along with the command that it stands for.
TEST(NumberField, TakesAKeyWithCtrlAsTheCommandThatItIs)
{
    NumberField field(3);
    field.setText(QStringLiteral("12"));
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_A, QStringLiteral("a"), Qt::ControlModifier);
    EXPECT_EQ(field.selectedText(), QStringLiteral("12"));
    EXPECT_EQ(field.text(), QStringLiteral("12"));
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_At, QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(field.text(), QStringLiteral("12"));
}

TEST(NumberField, IsAsWideAsItsNumbersAndGrowsWithTheFont)
{
    NumberField three(3);
    const NumberField ten(10);
    EXPECT_LT(three.sizeHint().width(), ten.sizeHint().width());
    QFont large = three.font();
    large.setPointSize(large.pointSize() * 2);
    const int usual = three.sizeHint().width();
    three.setFont(large);
    EXPECT_GT(three.sizeHint().width(), usual);
}

class CharacterGridTest : public testing::Test
{
protected:
    CharacterGridTest()
    {
        grid.setCharacters(str("abcdefg"), 3);
        grid.resize(grid.sizeHint());
        grid.show();
    }

    CharacterGrid grid;
};

TEST_F(CharacterGridTest, FillsRowByRow)
{
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(grid.item(1, 2)->text(), str("f"));
    EXPECT_EQ(grid.selectedCell(), 0);
    EXPECT_EQ(grid.selectedCharacter(), str("a"));
}

TEST_F(CharacterGridTest, IsWalkedByTheArrowKeys)
{
    QSignalSpy picks(&grid, &CharacterGrid::cellPicked);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.selectedCharacter(), str("e"));
    EXPECT_EQ(picks.count(), 2);
    QTest::keyClick(&grid, Qt::Key_Down); // nothing stands there
    EXPECT_EQ(grid.selectedCharacter(), str("e"));
}

TEST_F(CharacterGridTest, TellsADoubleClick)
{
    QSignalSpy chosen(&grid, &CharacterGrid::cellChosen);
    const QPoint point = grid.visualRect(grid.indexOf(5)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, point);
    EXPECT_EQ(grid.selectedCharacter(), str("f"));
    EXPECT_EQ(chosen.count(), 1);
}

TEST(CharacterGrid, HasNoCharacterWhenEmpty)
{
    const CharacterGrid grid;
    EXPECT_EQ(grid.selectedCell(), -1);
    EXPECT_EQ(grid.selectedCharacter(), QString());
}

TEST(CharacterGrid, HasCellsThatShowNothing)
{
    CharacterGrid grid;
    grid.setCharacters(str("a") + CharacterGrid::NoCharacter + str("c"), 3);
    grid.show();
    EXPECT_EQ(grid.item(0, 1)->text(), QString());
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(grid.selectedCell(), 1);
    EXPECT_EQ(grid.selectedCharacter(), QString());
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(grid.selectedCharacter(), str("c"));
}

TEST(Controls, TextAreasReadWithWholeBreaksAndEveryCharacter)
{
    const std::unique_ptr<QPlainTextEdit> area(ui::textArea(str("txtArea")));
    area->setPlainText(QStringLiteral("a\nb\u00A0c\r\nd"));
    EXPECT_EQ(ui::textOf(*area), QStringLiteral("a\r\nb\u00A0c\r\nd"));
}

TEST(Controls, ACombosTypedTextStaysAsTyped)
{
    int changes = 0;
    int clicks = 0;
    const std::unique_ptr<QComboBox> combo(ui::combo(
        str("cboUrl"), {str("example.org")}, [&] { ++changes; }, [&] { ++clicks; }));
    combo->show();
    QTest::keyClicks(combo->lineEdit(), str("exam"));
    EXPECT_EQ(combo->currentText(), str("exam"));
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(clicks, 0);
}

TEST(Controls, AKeyHandlerCanUseAKeyUp)
{
    const std::unique_ptr<QLineEdit> field(ui::text(str("txtText")));
    QList<int> keys;
    ui::onKeyDown(field.get(), [&](const QKeyEvent &key) {
        keys.append(key.key());
        return key.key() == Qt::Key_B;
    });
    field->show();
    QTest::keyClicks(field.get(), str("abc"));
    EXPECT_THAT(keys, ElementsAre(int(Qt::Key_A), int(Qt::Key_B), int(Qt::Key_C)));
    EXPECT_EQ(field->text(), str("ac"));
}
} // namespace
