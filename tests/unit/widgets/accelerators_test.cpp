#include "widgets/accelerators.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromLatin1(text);
}

TEST(AcceleratorOf, IsTheCharacterBehindTheMark)
{
    EXPECT_EQ(acceleratorOf(q("&file")), q("F"));
    EXPECT_EQ(acceleratorOf(q("Save && &Go")), q("G"));
    EXPECT_EQ(acceleratorOf(q("Save && go")), QString());
    EXPECT_EQ(acceleratorOf(q("Go&")), QString());
    EXPECT_EQ(acceleratorOf({}), QString());
}

TEST(WithAnotherAccelerator, TakesTheStartOfAWordIfItCan)
{
    EXPECT_EQ(withAnotherAccelerator(q("&Text to show:"), {q("T")}), q("Text to &show:"));
    EXPECT_EQ(withAnotherAccelerator(q("&Text:"), {q("T")}), q("T&ext:"));
    EXPECT_EQ(withAnotherAccelerator(q("&Tt"), {q("T")}), q("Tt"));
    EXPECT_EQ(withAnotherAccelerator(q("A && &B"), {q("A"), q("B")}), q("A && B"));
}

class SettleAccelerators : public testing::Test
{
protected:
    QPushButton *button(const char *caption)
    {
        auto *made = new QPushButton(q(caption));
        layout->addWidget(made);
        return made;
    }
    QLabel *label(const char *caption)
    {
        auto *made = new QLabel(q(caption));
        auto *field = new QLineEdit;
        made->setBuddy(field);
        layout->addWidget(made);
        layout->addWidget(field);
        return made;
    }

    QWidget window;
    QVBoxLayout *layout = new QVBoxLayout(&window);
};

TEST_F(SettleAccelerators, LeavesWhatIsUnique)
{
    QLabel *rows = label("&Rows:");
    QPushButton *ok = button("&OK");
    settleAccelerators(window);
    EXPECT_EQ(rows->text(), q("&Rows:"));
    EXPECT_EQ(ok->text(), q("&OK"));
}

TEST_F(SettleAccelerators, GivesTheSecondAnotherLetterThatNobodyHas)
{
    label("&Text:");
    QLabel *target = label("&Target:");
    label("&Address:");
    settleAccelerators(window);
    EXPECT_EQ(target->text(), q("Ta&rget:")) << "T and A are taken";
}

TEST_F(SettleAccelerators, LetsLabelsGiveWayToButtons)
{
    QLabel *size = label("&Size:");
    QPushButton *save = button("&Save");
    settleAccelerators(window);
    EXPECT_EQ(save->text(), q("&Save"));
    EXPECT_EQ(size->text(), q("S&ize:"));
}

TEST_F(SettleAccelerators, LetsTwoPagesHaveTheSame)
{
    auto *stack = new QStackedWidget;
    auto *first = new QCheckBox(q("&Width"));
    auto *second = new QCheckBox(q("&Wrap"));
    auto *everywhere = new QPushButton(q("&Wait"));
    stack->addWidget(first);
    stack->addWidget(second);
    layout->addWidget(stack);
    settleAccelerators(window);
    EXPECT_EQ(first->text(), q("&Width"));
    EXPECT_EQ(second->text(), q("&Wrap"));
    layout->addWidget(everywhere);
    settleAccelerators(window);
    EXPECT_EQ(everywhere->text(), q("&Wait"));
    EXPECT_EQ(first->text(), q("W&idth"));
    EXPECT_EQ(second->text(), q("W&rap"));
}
} // namespace
