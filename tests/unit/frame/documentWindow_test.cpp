// What a document window does that no script of the user can look at.
#include "common/mainWindow.h"
#include "common/programState.h"
#include "desktop/desktopServices.h"
#include "document/frmWrite.h"
#include "frame/application.h"
#include "frame/frmMdi.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "surface/editSurface.h"
#include "widgets/nodeTree.h"

#include <QApplication>
#include <QFile>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
/// The program over an empty home, with a data file of three elements and one empty document.
class DocumentWindowTest : public testing::Test
{
protected:
    DocumentWindowTest() : desktop(desktopAt(home.path())), services(desktop->services())
    {
        services.appPath = home.path();
        QFile codes(home.filePath(QStringLiteral("Html.tcb")));
        EXPECT_TRUE(codes.open(QIODevice::WriteOnly));
        codes.write("\xBB"
                    "p\r\n\xBB"
                    "table\r\n\xBB\xBB"
                    "border=number\r\n\xBB"
                    "td\r\n");
        codes.close();
        settings::write(services.settings, settings::WelcomeScreen, QStringLiteral("false"));
        settings::write(services.settings, settings::BlankDocCode, QStringLiteral("0"));
        application = std::make_unique<Application>(services);
        application->form(QStringLiteral("frmMdi"))->Show();
        settle();
    }
    ~DocumentWindowTest() override
    {
        application.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the windows, before their timers tick
    }

    static void settle()
    {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    frmWrite &document() { return dynamic_cast<frmWrite &>(*application->context().mainWindow->activeDocument()); }
    EditSurface &edit() { return dynamic_cast<EditSurface &>(document().txtEdit()); }
    void key(int code, const QString &text = {})
    {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
        QApplication::sendEvent(&edit(), &press);
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, text);
        QApplication::sendEvent(&edit(), &release);
    }
    void commit(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&edit(), &event);
    }
    template <class Control>
    Control &control(const char *name)
    {
        return dynamic_cast<Control &>(*document().control(QLatin1String(name)));
    }

    QTemporaryDir home;
    std::unique_ptr<DesktopServices> desktop;
    Services services;
    std::unique_ptr<Application> application;

private:
    static std::unique_ptr<DesktopServices> desktopAt(const QString &folder)
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(place, folder.toUtf8());
        return std::make_unique<DesktopServices>();
    }
};

TEST_F(DocumentWindowTest, CountsTheLinesWhenItIsAskedTo)
{
    settings::write(services.settings, settings::MaintainIndent, QStringLiteral("False"));
    EXPECT_EQ(document().AvailableDocumentLines, 1);
    edit().setText(QStringLiteral("1\r\n2\r\n3"));
    EXPECT_EQ(document().AvailableDocumentLines, 3) << "a change that no key has made";
    edit().setSelStart(1);
    key(Qt::Key_Return, QStringLiteral("\r"));
    ASSERT_EQ(edit().lineCount(), 4);
    EXPECT_EQ(document().AvailableDocumentLines, 3) << "a key's change waits";
    edit().setSelStart(1);
    key(Qt::Key_Delete);
    ASSERT_EQ(edit().lineCount(), 3);
    key(Qt::Key_Return, QStringLiteral("\r"));
    key(Qt::Key_Shift);
    EXPECT_EQ(document().AvailableDocumentLines, 4) << "for the next key";
}

TEST_F(DocumentWindowTest, CountsTheLinesAtADeleteAtOnce)
{
    edit().setText(QStringLiteral("1\r\n2"));
    edit().setSelStart(1);
    key(Qt::Key_Delete);
    EXPECT_EQ(edit().Text(), QStringLiteral("12"));
    EXPECT_EQ(document().AvailableDocumentLines, 1);
}

TEST_F(DocumentWindowTest, CountsTheLinesWhenItIsScrolled)
{
    settings::write(services.settings, settings::MaintainIndent, QStringLiteral("False"));
    edit().setText(QString(400, u'x').replace(u'x', QStringLiteral("x\r\n")));
    edit().setSelStart(0);
    key(Qt::Key_Return, QStringLiteral("\r"));
    ASSERT_EQ(document().AvailableDocumentLines, 401);
    edit().verticalScrollBar()->setValue(100);
    EXPECT_EQ(document().AvailableDocumentLines, 402);
}

TEST_F(DocumentWindowTest, LeavesTheLinesAloneDuringAPass)
{
    document().ColouringActive = true;
    edit().setText(QStringLiteral("1\r\n2"));
    document().UpdateLineInformation();
    EXPECT_EQ(document().AvailableDocumentLines, 1);
    document().ColouringActive = false;
}

TEST_F(DocumentWindowTest, CompletesAWordThatAnInputMethodWrites)
{
    commit(QStringLiteral("<ta"));
    EXPECT_TRUE(control<QWidget>("picCodeAsssitantBack").isVisible());
    QInputMethodEvent composing(QStringLiteral("b"), {});
    QApplication::sendEvent(&edit(), &composing);
    EXPECT_TRUE(control<QWidget>("picCodeAsssitantBack").isVisible()) << "composing is no change yet";
    commit(QStringLiteral("b"));
    EXPECT_TRUE(control<QWidget>("picCodeAsssitantBack").isVisible());
    EXPECT_TRUE(edit().hasFocus());
    commit(QStringLiteral(" "));
    EXPECT_EQ(edit().Text(), QStringLiteral("<table "));
    EXPECT_TRUE(control<QWidget>("txtCodeAssistantSyntax").isVisible());
    commit(QStringLiteral(">"));
    EXPECT_FALSE(control<QWidget>("txtCodeAssistantSyntax").isVisible());
}

TEST_F(DocumentWindowTest, SharesTheAssistantsElementsWithAllOthers)
{
    const auto *first = control<NodeTree>("treCodeAssistantElements").model();
    application->context().newBlankDocument();
    settle();
    auto &second = control<NodeTree>("treCodeAssistantElements");
    EXPECT_EQ(second.model(), first);
    EXPECT_EQ(second.nodeCount(), 3);
    second.selectNode(2);
    EXPECT_EQ(second.selectedNode(), 2);
}

TEST_F(DocumentWindowTest, GivesTheTipsFocusToTheText)
{
    commit(QStringLiteral("<p"));
    key(Qt::Key_Space, QStringLiteral(" "));
    auto &tip = control<QWidget>("txtCodeAssistantSyntax");
    ASSERT_TRUE(tip.isVisible());
    tip.setFocus();
    settle();
    EXPECT_TRUE(edit().hasFocus());
    EXPECT_TRUE(tip.isVisible());
}

TEST_F(DocumentWindowTest, KeepsTheCaretsLineFreeOfListAndTip)
{
    edit().setText(QString(300, u'x').replace(u'x', QStringLiteral("x\r\n")));
    edit().setSelStart(edit().textLength());
    commit(QStringLiteral("<ta"));
    const QRect caret = edit().positionOfCharacter(edit().SelStart());
    const auto inEdit = [&](const QWidget &widget) {
        return widget.geometry().translated(-edit().mapTo(widget.parentWidget(), QPoint()));
    };
    const QRect list = inEdit(control<QWidget>("picCodeAsssitantBack"));
    EXPECT_TRUE(edit().rect().contains(list));
    EXPECT_LT(list.bottom(), caret.bottom()) << "above the last line on view";
    key(Qt::Key_Space, QStringLiteral(" "));
    const QRect tip = inEdit(control<QWidget>("txtCodeAssistantSyntax"));
    EXPECT_TRUE(edit().rect().contains(tip));
    EXPECT_LE(tip.bottom(), caret.top());
}
TEST_F(DocumentWindowTest, TellsWhatWasSetAside)
{
    application->context().state.setAside = {QStringLiteral("/a/AddrBar.dat.aside")};
    application->context().newBlankDocument();
    settle();
    ASSERT_TRUE(document().notices.current());
    EXPECT_EQ(document().notices.current()->text,
              QStringLiteral("A file of the program's was far too large to be its own. It was set aside as "
                             "\"/a/AddrBar.dat.aside\"."));
    document().notices.press(0);
    EXPECT_TRUE(document().notices.isEmpty());
    application->context().newBlankDocument();
    EXPECT_TRUE(document().notices.isEmpty());
}
} // namespace
