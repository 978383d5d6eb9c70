#include "widgets/colourSelection.h"
#include "widgets/colourSwatch.h"
#include "widgets/themeColour.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>
#include <utility>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// Answers the question for a colour with one, or leaves it.
struct OneColour {
    std::optional<ColourValue> pick(ColourValue initial)
    {
        asked.append(initial);
        return answer;
    }

    QList<ColourValue> asked;
    std::optional<ColourValue> answer;
};

class ColourSelectionTest : public testing::Test
{
protected:
    ColourSelectionTest() { picker.show(); }

    void retype(const char *text)
    {
        picker.textField()->selectAll();
        QTest::keyClicks(picker.textField(), str(text));
    }

    OneColour dialogs;
    ColourSelection picker{[this](ColourValue initial) { return dialogs.pick(initial); }};
    QSignalSpy changes{&picker, &ColourSelection::colourChanged};
};

TEST(ColourSelection, LeavesAPickAloneThatTookItAway)
{
    ColourSelection *picker = nullptr;
    picker = new ColourSelection([&](ColourValue) {
        delete std::exchange(picker, nullptr);
        return std::optional<ColourValue>(255);
    });
    picker->changeButton()->click();
    EXPECT_EQ(picker, nullptr);
}

TEST_F(ColourSelectionTest, StartsBlackAndTellsNoChangeOfTheProgram)
{
    EXPECT_EQ(picker.HexadecimalColour(), str("#000000"));
    picker.setColour(255);
    EXPECT_EQ(picker.HexadecimalColour(), str("#FF0000"));
    EXPECT_EQ(picker.textField()->text(), str("#FF0000"));
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ColourSelectionTest, TakesATypedColourOnceItIsWhole)
{
    retype("#ff80");
    EXPECT_EQ(picker.HexadecimalColour(), str("#000000"));
    EXPECT_EQ(changes.count(), 0);
    QTest::keyClicks(picker.textField(), str("00"));
    EXPECT_EQ(picker.HexadecimalColour(), str("#FF8000"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ColourSelectionTest, PutsTheColourBackWhenHalfATextIsLeft)
{
    picker.setColour(255);
    retype("#12");
    QTest::keyClick(picker.textField(), Qt::Key_Return);
    EXPECT_EQ(picker.textField()->text(), str("#FF0000"));
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ColourSelectionTest, TakesTheDialogsColour)
{
    picker.setColour(255);
    dialogs.answer = 0xFF0000;
    QTest::mouseClick(picker.changeButton(), Qt::LeftButton);
    EXPECT_THAT(dialogs.asked, ElementsAre(255U));
    EXPECT_EQ(picker.HexadecimalColour(), str("#0000FF"));
    EXPECT_EQ(picker.textField()->text(), str("#0000FF"));
    EXPECT_EQ(changes.count(), 1);
    QTest::keyClick(picker.changeButton(), Qt::Key_Space);
    EXPECT_EQ(changes.count(), 1) << "the same colour again";
}

TEST_F(ColourSelectionTest, KeepsItsColourWhenTheDialogIsLeft)
{
    picker.setColour(255);
    QTest::mouseClick(picker.changeButton(), Qt::LeftButton);
    EXPECT_EQ(picker.GetColour(), 255U);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ColourSelectionTest, ShowsAnUnsetColourAsAnEmptyText)
{
    picker.setUnsetColour(1);
    EXPECT_EQ(picker.HexadecimalColour(), str("#010000"));
    EXPECT_EQ(picker.textField()->text(), QString());
    retype("#0000ff");
    EXPECT_EQ(picker.HexadecimalColour(), str("#0000FF"));
    picker.textField()->selectAll();
    QTest::keyClick(picker.textField(), Qt::Key_Delete);
    EXPECT_EQ(picker.HexadecimalColour(), str("#010000"));
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(dialogs.asked.size(), 0);
}

TEST(ThemeColour, TakesTheThemesColoursFromThePalette)
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::green);
    EXPECT_EQ(shownColour(WindowColour, palette), QColor(Qt::yellow));
    EXPECT_EQ(shownColour(HighlightColour, palette), QColor(Qt::green));
    EXPECT_EQ(shownColour(255, palette), QColor(255, 0, 0));
    EXPECT_EQ(colourValue(QColor(1, 2, 3)), 0x030201U);
}

TEST(ThemeColour, RemembersABackgroundAndKnowsTheUsualOnes)
{
    QLineEdit field;
    const QWidget panel;
    EXPECT_EQ(backColor(field), WindowColour);
    EXPECT_EQ(backColor(panel), ButtonFaceColour);
    setBackColor(field, ButtonFaceColour);
    EXPECT_EQ(backColor(field), ButtonFaceColour);
    EXPECT_EQ(field.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Window));
}

TEST(ThemeColour, FollowsAChangeOfTheTheme)
{
    const QPalette usual = QApplication::palette();
    QWidget panel;
    setBackColor(panel, HighlightColour);
    QPalette changed = usual;
    changed.setColor(QPalette::Highlight, QColor(1, 2, 3));
    QApplication::setPalette(changed);
    QCoreApplication::processEvents();
    const QColor followed = panel.palette().color(QPalette::Window);
    QApplication::setPalette(usual);
    EXPECT_EQ(followed, QColor(1, 2, 3));
}

TEST(ColourSwatch, SaysItsColour)
{
    ColourSwatch swatch;
    swatch.setBackColor(33023);
    EXPECT_EQ(swatch.BackColor(), 33023U);
    EXPECT_EQ(swatch.accessibleDescription(), str("#FF8000"));
}
} // namespace
