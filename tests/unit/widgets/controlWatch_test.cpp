#include "widgets/controls.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A combo and a text box, and how often the combo got and lost the focus.
class FocusHandlers : public testing::Test
{
protected:
    FocusHandlers()
    {
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(other);
        layout->addWidget(combo);
        ui::onGotFocus(combo, [this] { ++got; });
        ui::onLostFocus(combo, [this] { ++lost; });
        dialog.show();
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        other->setFocus();
    }

    QDialog dialog;
    QComboBox *combo = ui::combo(str("cboSrc"), {str("a"), str("b")});
    QLineEdit *other = ui::text(str("txtOther"));
    int got = 0;
    int lost = 0;
};

TEST_F(FocusHandlers, RunWhenTheFocusComesAndGoes)
{
    combo->setFocus();
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
    other->setFocus();
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 1);
}

TEST_F(FocusHandlers, DoNotRunForTheListThatAComboOpens)
{
    combo->setFocus();
    combo->showPopup();
    combo->hidePopup();
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
}
} // namespace
