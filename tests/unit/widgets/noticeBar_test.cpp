#include "widgets/noticeBar.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace
{
/// The line above a field, as it stands above a document's text.
class NoticeBarTest : public testing::Test
{
protected:
    NoticeBarTest()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(bar);
        layout->addWidget(field, 1);
        window.resize(800, 300);
        window.show();
        QApplication::setActiveWindow(&window);
        field->setFocus();
    }

    QLabel *text() const { return bar->findChild<QLabel *>(QStringLiteral("lblNotice")); }
    QPushButton *button(int index) const
    {
        return bar->findChild<QPushButton *>(QStringLiteral("cmdNotice(%1)").arg(index));
    }
    void tell(const QString &words)
    {
        bar->tell(words,
                  {{QStringLiteral("Keep")}, {QStringLiteral("Show what changed")}, {QStringLiteral("Discard")}});
        QApplication::processEvents();
    }

    QWidget window;
    NoticeBar *bar = new NoticeBar;
    QWidget *field = [] {
        auto *widget = new QWidget;
        widget->setFocusPolicy(Qt::StrongFocus);
        return widget;
    }();
};

const QString words = QStringLiteral("Recovered after an unexpected end.");

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}
} // namespace

TEST_F(NoticeBarTest, IsNotThereUntilItHasSomethingToTell)
{
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(field->height(), 300);
    tell(words);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(text()->text(), words);
    EXPECT_EQ(field->height(), 300 - bar->height());
    bar->clear();
    QApplication::processEvents();
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(field->height(), 300);
}

TEST_F(NoticeBarTest, HasAsManyButtonsAsAreGiven)
{
    tell(words);
    EXPECT_EQ(button(1)->text(), QStringLiteral("Show what changed"));
    bar->tell(words, {{QStringLiteral("Yes & no"), false}});
    EXPECT_TRUE(button(0)->isVisible());
    EXPECT_FALSE(button(0)->isEnabled());
    EXPECT_EQ(button(0)->text(), QStringLiteral("Yes & no"));
    EXPECT_TRUE(button(0)->shortcut().isEmpty());
    EXPECT_FALSE(button(1)->isVisible());
}

TEST_F(NoticeBarTest, TellsWhichButtonWasPressedAndLeavesTheFocus)
{
    QSignalSpy pressed(bar, &NoticeBar::pressed);
    tell(words);
    EXPECT_TRUE(field->hasFocus());
    QTest::mouseClick(button(2), Qt::LeftButton);
    ASSERT_EQ(pressed.size(), 1);
    EXPECT_EQ(pressed.first().first().toInt(), 2);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(NoticeBarTest, IsLeftByEscape)
{
    QSignalSpy left(bar, &NoticeBar::left);
    tell(words);
    button(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button(0), Qt::Key_Escape);
    EXPECT_EQ(left.size(), 1);
}

TEST_F(NoticeBarTest, CanBeReachedByTheKeyboard)
{
    EXPECT_FALSE(bar->takeFocus());
    bar->tell(words, {{QStringLiteral("Load again"), false}, {QStringLiteral("Keep mine")}});
    EXPECT_TRUE(bar->takeFocus());
    EXPECT_TRUE(button(1)->hasFocus());
    QSignalSpy pressed(bar, &NoticeBar::pressed);
    QTest::keyClick(button(1), Qt::Key_Space);
    EXPECT_EQ(pressed.size(), 1);
    bar->tell(words, {});
    EXPECT_FALSE(bar->takeFocus());
}

TEST_F(NoticeBarTest, HasItsButtonsInOneLineWithTheTextWhereThereIsRoom)
{
    tell(words);
    const int middle = text()->geometry().center().y();
    for (const int index : {0, 1, 2}) {
        EXPECT_NEAR(button(index)->geometry().center().y(), middle, 1) << index;
        EXPECT_GE(button(index)->x(), text()->geometry().right());
    }
    EXPECT_LE(button(2)->geometry().right(), bar->width());
}

TEST_F(NoticeBarTest, HasItsButtonsBelowTheTextInANarrowWindow)
{
    window.resize(260, 300);
    tell(words + QStringLiteral(" Its file has changed on the disk since."));
    EXPECT_EQ(bar->width(), 260);
    EXPECT_GE(button(0)->y(), text()->geometry().bottom());
    for (const int index : {0, 1, 2}) {
        EXPECT_LE(button(index)->geometry().right(), bar->width()) << index;
        EXPECT_LE(button(index)->geometry().bottom(), bar->height()) << index;
    }
    EXPECT_GE(text()->height(), text()->heightForWidth(text()->width()));
}

TEST_F(NoticeBarTest, NeverMakesItsWindowWider)
{
    tell(QString(400, u'm'));
    window.resize(300, 300);
    QApplication::processEvents();
    EXPECT_EQ(window.width(), 300);
    EXPECT_EQ(bar->width(), 300);
}

TEST_F(NoticeBarTest, LeavesTwoThirdsOfALowWindowAndScrolls)
{
    window.resize(260, 150);
    tell(words + QStringLiteral(" Its file has changed on the disk since."));
    EXPECT_EQ(bar->height(), 50);
    EXPECT_EQ(field->height(), 100);
    EXPECT_TRUE(bar->verticalScrollBar()->isVisible());
    const auto shown = [&](int index) {
        const QRect place(button(index)->mapTo(bar->viewport(), QPoint()), button(index)->size());
        return bar->viewport()->rect().contains(place);
    };
    EXPECT_FALSE(shown(0));
    EXPECT_TRUE(bar->takeFocus());
    EXPECT_TRUE(shown(0));
    QTest::keyClick(button(0), Qt::Key_Tab);
    QTest::keyClick(button(1), Qt::Key_Tab);
    EXPECT_TRUE(button(2)->hasFocus());
    EXPECT_TRUE(shown(2));
}

TEST_F(NoticeBarTest, IsWholeAgainInAWindowThatGrows)
{
    window.resize(260, 60);
    tell(words);
    ASSERT_TRUE(bar->verticalScrollBar()->isVisible());
    window.resize(260, 600);
    QApplication::processEvents();
    EXPECT_FALSE(bar->verticalScrollBar()->isVisible());
    EXPECT_LE(button(2)->geometry().bottom(), bar->height());
    EXPECT_EQ(field->height(), 600 - bar->height());
}

TEST_F(NoticeBarTest, GrowsWithItsLetters)
{
    window.resize(260, 900);
    tell(words);
    const int before = bar->height();
    QFont large = text()->font();
    large.setPixelSize(24);
    text()->setFont(large);
    QApplication::processEvents(); // its own layout
    QApplication::processEvents(); // the window's
    EXPECT_GT(bar->height(), before);
    EXPECT_FALSE(bar->verticalScrollBar()->isVisible());
}

TEST_F(NoticeBarTest, IsReadableOnLightAndDarkGround)
{
    for (const bool dark : {false, true}) {
        QPalette theme;
        theme.setColor(QPalette::Window, dark ? QColor(35, 38, 41) : QColor(239, 240, 241));
        theme.setColor(QPalette::WindowText, dark ? QColor(252, 252, 252) : QColor(35, 38, 41));
        theme.setColor(QPalette::Highlight, QColor(61, 174, 233));
        window.setPalette(theme);
        tell(words);
        const QColor ground = bar->palette().color(QPalette::Window);
        EXPECT_NE(ground, theme.color(QPalette::Window)) << dark;
        EXPECT_GE(contrast(ground, text()->palette().color(QPalette::WindowText)), 7.0) << dark;
    }
}

TEST_F(NoticeBarTest, BearsItsTextAsItsAccessibleName)
{
    tell(words);
    EXPECT_EQ(bar->accessibleName(), words);
}
