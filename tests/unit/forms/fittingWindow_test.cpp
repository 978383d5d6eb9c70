#include "forms/fittingWindow.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace
{
/// A dialog of a column of fields, each 30 high, with two buttons beside them.
class FittingWindow : public testing::Test
{
protected:
    void build(int fields)
    {
        auto *outer = new QVBoxLayout(&window);
        auto *beside = new QHBoxLayout;
        auto *column = new QVBoxLayout;
        for (int i = 0; i < fields; ++i) {
            auto *field = new QLineEdit;
            field->setFixedSize(200, 30);
            column->addWidget(field);
            m_fields.append(field);
        }
        auto *buttons = new QVBoxLayout;
        buttons->addWidget(ok);
        buttons->addWidget(cancel);
        buttons->addStretch();
        beside->addLayout(column, 1);
        beside->addLayout(buttons);
        outer->addLayout(beside);
    }

    QScrollArea *area() const { return window.findChild<QScrollArea *>(); }
    static bool isInSight(const QWidget &widget)
    {
        const QWidget *top = widget.window();
        return top->rect().contains(QRect(widget.mapTo(top, QPoint()), widget.size()));
    }

    QDialog window;
    QPushButton *ok = new QPushButton(QStringLiteral("OK"));
    QPushButton *cancel = new QPushButton(QStringLiteral("Cancel"));
    QList<QLineEdit *> m_fields;
};

TEST_F(FittingWindow, StaysAsItIsWhereThereIsRoom)
{
    build(3);
    fitInto(window, {700, 450});
    EXPECT_EQ(area(), nullptr);
    EXPECT_FALSE(window.testAttribute(Qt::WA_Resized));
}

TEST_F(FittingWindow, ScrollsWhatIsTooHighAndKeepsTheButtonsInSight)
{
    build(20);
    fitInto(window, {700, 450});
    window.show();
    ASSERT_NE(area(), nullptr);
    EXPECT_LE(window.height(), 450);
    EXPECT_LE(window.width(), 700);
    for (const QPushButton *button : {ok, cancel}) {
        EXPECT_FALSE(area()->isAncestorOf(button));
        EXPECT_TRUE(isInSight(*button));
    }
    EXPECT_TRUE(area()->isAncestorOf(m_fields.last()));
    EXPECT_FALSE(isInSight(*m_fields.last()));
}

TEST_F(FittingWindow, ScrollsTheButtonsTooWhereTheyHaveNoRoomThemselves)
{
    build(20);
    const int both = ok->minimumSizeHint().height() + cancel->minimumSizeHint().height();
    fitInto(window, {700, both});
    window.show();
    ASSERT_EQ(window.findChildren<QScrollArea *>().size(), 1);
    EXPECT_LE(window.height(), both);
    EXPECT_TRUE(area()->isAncestorOf(ok));
    EXPECT_TRUE(area()->isAncestorOf(cancel));
    EXPECT_GE(cancel->height(), cancel->minimumSizeHint().height());
}

TEST_F(FittingWindow, ShowsTheFieldThatTheKeyboardComesTo)
{
    build(20);
    fitInto(window, {700, 450});
    window.show();
    window.activateWindow();
    m_fields[18]->setFocus();
    QTest::keyClick(m_fields[18], Qt::Key_Tab);
    EXPECT_TRUE(isInSight(*m_fields.last()));
}

TEST_F(FittingWindow, DoesSoOnce)
{
    build(20);
    fitInto(window, {700, 450});
    ASSERT_EQ(window.findChildren<QScrollArea *>().size(), 1);
    fitInto(window, {700, 450});
    EXPECT_EQ(window.findChildren<QScrollArea *>().size(), 1);
}

TEST_F(FittingWindow, IsAsHighAsItsTextNeedsAtItsWidth)
{
    auto *column = new QVBoxLayout(&window);
    auto *text = new QLabel(QStringLiteral("A question that is long enough to be wrapped into more lines than one."));
    text->setWordWrap(true);
    column->addWidget(text);
    column->addWidget(ok);
    window.setMinimumWidth(600);
    takeNaturalHeight(window);
    EXPECT_EQ(window.size(), QSize(600, column->totalHeightForWidth(600)));
    EXPECT_LT(window.height(), window.sizeHint().height()); // what it would be by itself
}

TEST_F(FittingWindow, GivesItsTextTheHeightThatItNeedsWhereTheRoomIsNarrow)
{
    struct Wide final : QWidget {
        QSize sizeHint() const override { return {600, 20}; }
    };
    auto *column = new QVBoxLayout(&window);
    auto *text = new QLabel(QStringLiteral("A text that is wrapped into more lines than one. ").repeated(8));
    text->setWordWrap(true);
    column->addWidget(text);
    column->addWidget(new Wide);
    fitInto(window, {300, 450});
    window.show();
    EXPECT_EQ(area(), nullptr);
    EXPECT_LE(window.width(), 300);
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

TEST_F(FittingWindow, KeepsTheSizeThatAFormGivesItself)
{
    build(3);
    window.resize(500, 400);
    takeNaturalHeight(window);
    EXPECT_EQ(window.size(), QSize(500, 400));
}
} // namespace
