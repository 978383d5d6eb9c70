#include "forms/form.h"

#include "unit/support/testDesktop.h"
#include "widgets/controlName.h"
#include "widgets/layout.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
/// A form that writes down what happens to it.
class NotedForm final : public Form
{
public:
    NotedForm(ProgramContext &context, const QString &name) : Form(context, name) {}

    QStringList events;
    QString kept; ///< a private variable of the form
    bool mayUnload = true;
    bool leavesInLoad = false;
    QLineEdit *txtName = nullptr;
    QPushButton *cmdOK = nullptr;
    bool hasHelp = false;

protected:
    void Form_Load() override
    {
        events << QStringLiteral("load");
        if (leavesInLoad) {
            Unload();
            return;
        }
        QPushButton *cmdCancel = nullptr;
        const QString help = hasHelp ? QStringLiteral("cmdHelp") : QStringLiteral("cmdOther");
        setContent(ui::column(
            {ui::rows({ui::row(QStringLiteral("&Name:"), txtName = ui::text(QStringLiteral("txtName")))}),
             ui::button(controlName(QStringLiteral("picBullet"), 3), QStringLiteral("3"), {}),
             ui::button(help, QStringLiteral("Help"), [this] { events << QStringLiteral("help"); }),
             ui::buttons({cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); }),
                          cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] {
                              events << QStringLiteral("cancel");
                              Unload();
                          })})}));
        setDefaultButton(cmdOK);
        setCancelButton(cmdCancel);
    }
    bool Form_QueryUnload() override
    {
        events << QStringLiteral("query");
        return mayUnload;
    }
    void Form_Unload() override { events << QStringLiteral("unload"); }

private:
    void cmdOK_Click()
    {
        Unload();
        // The button's own handler goes on after the unload and may touch the button.
        events << QStringLiteral("clicked ") + cmdOK->objectName();
    }
};

class FormTest : public testing::Test
{
protected:
    TestDesktop desktop;
    NotedForm form{desktop.context(), QStringLiteral("frmNoted")};
};

TEST_F(FormTest, OwnsItsWindowOnlyBetweenLoadAndUnload)
{
    EXPECT_FALSE(form.window());
    EXPECT_FALSE(form.isLoaded());
    form.Load();
    EXPECT_TRUE(form.window());
    EXPECT_FALSE(form.Visible());
    form.Show();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.events, QStringList{QStringLiteral("load")}) << "showing a loaded form loads nothing";
    EXPECT_TRUE(form.Unload());
    EXPECT_FALSE(form.window());
    EXPECT_EQ(form.events, (QStringList{QStringLiteral("load"), QStringLiteral("query"), QStringLiteral("unload")}));
}

TEST_F(FormTest, BuildsItsControlsAnewAndKeepsItsFields)
{
    form.Show();
    form.kept = QStringLiteral("remembered");
    form.txtName->setText(QStringLiteral("typed"));
    form.Unload();
    form.Show();
    EXPECT_EQ(form.txtName->text(), QString());
    EXPECT_EQ(form.kept, QStringLiteral("remembered"));
}

TEST_F(FormTest, CallsOffAnUnload)
{
    form.Show();
    form.mayUnload = false;
    EXPECT_FALSE(form.Unload());
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(desktop.forms().loaded().size(), 1);
    EXPECT_FALSE(form.window()->close()) << "the close box asks the same question";
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.events.count(QStringLiteral("query")), 2);
}

TEST_F(FormTest, UnloadOfAFormThatIsNotLoadedDoesNothing)
{
    EXPECT_TRUE(form.Unload());
    EXPECT_TRUE(form.events.isEmpty());
}

TEST_F(FormTest, LeavesTheListAtOnceAndItsWindowOnceTheHandlerIsDone)
{
    form.Show();
    const QPointer<QWidget> window = form.window();
    QTest::mouseClick(form.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(desktop.forms().loaded().isEmpty());
    EXPECT_EQ(form.events.last(), QStringLiteral("clicked cmdOK"));
    TestDesktop::settle();
    EXPECT_FALSE(window);
}

TEST_F(FormTest, MayUnloadItselfWhileItLoads)
{
    form.leavesInLoad = true;
    form.Show();
    EXPECT_FALSE(form.isLoaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(desktop.forms().loaded().isEmpty());
}

TEST_F(FormTest, FindsControlsByTheirNames)
{
    EXPECT_FALSE(form.control(QStringLiteral("txtName")));
    form.Load();
    EXPECT_EQ(form.control(QStringLiteral("txtName")), form.txtName);
    EXPECT_TRUE(form.control(QStringLiteral("picBullet(3)")));
    EXPECT_FALSE(form.control(QStringLiteral("picBullet(4)")));
    EXPECT_EQ(form.txtName->accessibleName(), QStringLiteral("Name"));
}

TEST_F(FormTest, EnterPressesTheDefaultButtonAndEscapeTheCancelButton)
{
    form.Show();
    form.txtName->setFocus();
    QTest::keyClick(form.window(), Qt::Key_Escape);
    EXPECT_TRUE(form.events.contains(QStringLiteral("cancel")));
    EXPECT_FALSE(form.isLoaded());
    form.events.clear();
    form.Show();
    QTest::keyClick(form.window(), Qt::Key_Return);
    EXPECT_EQ(form.events.last(), QStringLiteral("clicked cmdOK"));
}

TEST_F(FormTest, F1PressesTheHelpButton)
{
    form.hasHelp = true;
    form.Show();
    form.txtName->setFocus();
    QTest::keyClick(form.txtName, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_FALSE(form.events.contains(QStringLiteral("help")));
    QTest::keyClick(form.txtName, Qt::Key_F1);
    EXPECT_EQ(form.events.last(), QStringLiteral("help"));
    EXPECT_TRUE(form.Visible());
    form.events.clear();
    qobject_cast<QPushButton *>(form.control(QStringLiteral("cmdHelp")))->setEnabled(false);
    QTest::keyClick(form.txtName, Qt::Key_F1);
    EXPECT_EQ(form.events, QStringList());
}

TEST_F(FormTest, F1DoesNothingWithoutAHelpButton)
{
    form.Show();
    form.events.clear();
    QTest::keyClick(form.txtName, Qt::Key_F1);
    EXPECT_EQ(form.events, QStringList());
}

TEST_F(FormTest, ListsFormsInLoadingOrder)
{
    NotedForm second(desktop.context(), QStringLiteral("frmSecond"));
    second.Load();
    form.Load();
    EXPECT_EQ(desktop.forms().loaded(), (QList<Form *>{&second, &form}));
    second.Unload();
    second.Load();
    EXPECT_EQ(desktop.forms().loaded(), (QList<Form *>{&form, &second}));
    EXPECT_EQ(desktop.forms().loaded(QStringLiteral("frmSecond")), &second);
    EXPECT_EQ(desktop.forms().loaded(QStringLiteral("frmThird")), nullptr);
}

TEST_F(FormTest, DiscardTakesTheWindowWithoutAHandler)
{
    form.Show();
    form.discard();
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(form.events, QStringList{QStringLiteral("load")});
}

TEST_F(FormTest, AnAdoptedFormLivesAsLongAsItsWindow)
{
    auto owned = std::make_unique<NotedForm>(desktop.context(), QStringLiteral("frmOwned"));
    const QPointer<NotedForm> watched = owned.get();
    desktop.forms().adopt(std::move(owned));
    watched->Show();
    TestDesktop::settle();
    ASSERT_TRUE(watched);
    watched->Unload();
    EXPECT_TRUE(watched) << "its handlers may still be running";
    TestDesktop::settle();
    EXPECT_FALSE(watched);
}

TEST_F(FormTest, ModalShowReturnsOnceTheFormIsUnloaded)
{
    QMetaObject::invokeMethod(
        &form, [this] { form.Unload(); }, Qt::QueuedConnection);
    form.ShowModal();
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(form.events.last(), QStringLiteral("unload"));
}
} // namespace
