// The main window without a mouse.
#include "common/document.h"
#include "common/mainWindow.h"
#include "forms/form.h"
#include "frame/application.h"
#include "unit/support/accessibleWalk.h"
#include "unit/support/wholeProgram.h"
#include "widgets/barKeys.h"
#include "widgets/sidePane.h"
#include "widgets/tabStrip.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gmock/gmock.h>

namespace
{
class MainWindowKeys : public WholeProgram
{
protected:
    MainWindowKeys()
    {
        frame().activateWindow();
        document().activate();
        settle();
    }

    QWidget &frame() { return *application->form(QStringLiteral("frmMdi"))->window(); }
    Document &document() { return *application->context().mainWindow->activeDocument(); }
    template <class Widget>
    Widget &named(const char *name)
    {
        auto *found = frame().findChild<Widget *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    static QString focus()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    static QToolButton *focusedButton() { return qobject_cast<QToolButton *>(QApplication::focusWidget()); }
};
} // namespace

TEST_F(MainWindowKeys, TellsAllThatIsOnShow)
{
    const QStringList missing = untold(frame());
    EXPECT_TRUE(missing.isEmpty()) << qPrintable(missing.join(u'\n'));
}

TEST_F(MainWindowKeys, GoRoundByShiftF6AndComeBackByEscape)
{
    EXPECT_EQ(focus(), QStringLiteral("txtEdit"));
    QStringList round;
    for (int i = 0; i < 12; ++i) {
        press(Qt::Key_F6, Qt::ShiftModifier);
        const QToolButton *button = focusedButton();
        const bool inBar = button && qobject_cast<QToolBar *>(button->parentWidget());
        round.append(inBar ? button->parentWidget()->objectName() : focus());
    }
    EXPECT_THAT(
        round, testing::IsSupersetOf({QStringLiteral("tbrMain"), QStringLiteral("tbrInsert"), QStringLiteral("tbrHelp"),
                                      QStringLiteral("picProject"), QStringLiteral("paneDivider"),
                                      QStringLiteral("tabDocSel"), QStringLiteral("lblFileFormat")}));
    EXPECT_EQ(round.value(0), QStringLiteral("tbrMain"));
    while (!focusedButton() || focusedButton()->parentWidget() != &named<QToolBar>("tbrMain"))
        press(Qt::Key_F6, Qt::ShiftModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(focus(), QStringLiteral("txtEdit"));
}

TEST_F(MainWindowKeys, GoFromButtonToButtonByArrowsAndPressByEnter)
{
    auto &bar = named<QToolBar>("tbrFontStyles");
    QToolButton *bold = BarKeys::entrance(bar);
    ASSERT_TRUE(bold);
    bold->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_TRUE(focusedButton() && focusedButton() != bold);
    press(Qt::Key_Left);
    EXPECT_EQ(focusedButton(), bold);
    press(Qt::Key_Left); // there is none before it
    EXPECT_EQ(focusedButton(), bold);
    press(Qt::Key_End);
    EXPECT_NE(focusedButton(), bold);
    EXPECT_EQ(BarKeys::entrance(bar), focusedButton()); // Tab comes back to it
    press(Qt::Key_Home);
    document().txtEdit().setText({});
    press(Qt::Key_Return);
    EXPECT_EQ(document().txtEdit().Text(), QStringLiteral("<b></b>"));
}

TEST_F(MainWindowKeys, LeadTabToOneButtonOfEachBar)
{
    for (QToolBar *bar : frame().findChildren<QToolBar *>()) {
        int stops = 0;
        for (const QToolButton *button : bar->findChildren<QToolButton *>())
            stops += button->parentWidget() == bar && button->focusPolicy() == Qt::TabFocus ? 1 : 0;
        EXPECT_LE(stops, 1) << qPrintable(bar->objectName());
    }
}

TEST_F(MainWindowKeys, MoveTheEdges)
{
    auto &pane = named<SidePane>("picProject");
    pane.setFocus(Qt::TabFocusReason);
    const int width = pane.paneWidth();
    press(Qt::Key_Right);
    EXPECT_EQ(pane.paneWidth(), width + 20);
    press(Qt::Key_Left);
    EXPECT_EQ(pane.paneWidth(), width);

    auto &divider = named<QWidget>("paneDivider");
    divider.setFocus(Qt::TabFocusReason);
    const int place = divider.y();
    press(Qt::Key_Up);
    EXPECT_EQ(divider.y(), place - 20);
    press(Qt::Key_Down);
    EXPECT_NEAR(divider.y(), place, 1);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&divider)->role(), QAccessible::Splitter);
}

TEST_F(MainWindowKeys, ChooseADocumentInTheSelector)
{
    Document *first = &document();
    Document *second = application->context().newBlankDocument();
    settle();
    ASSERT_TRUE(second);
    EXPECT_EQ(&document(), second);
    auto &tabs = named<TabStrip>("tabDocSel");
    tabs.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Left);
    EXPECT_EQ(&document(), first);
}
