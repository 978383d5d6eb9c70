// What a desktop expects of every text widget: gestures of the mouse, drags, touchpads, its settings for the caret, and
// what it is told for those who cannot see.
#include "surfaceFixture.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QPointingDevice>
#include <QProxyStyle>
#include <QWheelEvent>

namespace
{
QStringList told; // what assistive technology was told; its handler is a plain function

void takeNote(QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::TextInserted: {
        const auto *inserted = static_cast<QAccessibleTextInsertEvent *>(event);
        told << QStringLiteral("put %1 %2").arg(inserted->changePosition()).arg(inserted->textInserted());
        break;
    }
    case QAccessible::TextRemoved: {
        const auto *removed = static_cast<QAccessibleTextRemoveEvent *>(event);
        told << QStringLiteral("gone %1 %2").arg(removed->changePosition()).arg(removed->textRemoved());
        break;
    }
    case QAccessible::TextCaretMoved:
        told << QStringLiteral("caret %1").arg(static_cast<QAccessibleTextCursorEvent *>(event)->cursorPosition());
        break;
    default:
        break;
    }
}

class EditSurfaceDesktop : public EditSurfaceTest
{
protected:
    QPoint placeOf(qsizetype position)
    {
        return surface.positionOfCharacter(position).center() + QPoint(1, 0) - surface.viewport()->pos();
    }
    void send(QEvent::Type type, const QPoint &place, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, place, surface.viewport()->mapToGlobal(QPointF(place)), button, buttons, {});
        QApplication::sendEvent(surface.viewport(), &event);
    }
    void press(qsizetype position)
    {
        send(QEvent::MouseButtonPress, placeOf(position), Qt::LeftButton, Qt::LeftButton);
    }
    void release(qsizetype position)
    {
        send(QEvent::MouseButtonRelease, placeOf(position), Qt::LeftButton, Qt::NoButton);
    }
    void drag(qsizetype position) { send(QEvent::MouseMove, placeOf(position), Qt::NoButton, Qt::LeftButton); }
    void doubleClick(qsizetype position)
    {
        press(position);
        release(position);
        send(QEvent::MouseButtonDblClick, placeOf(position), Qt::LeftButton, Qt::LeftButton);
    }
    bool hasTimer() { return !QAbstractEventDispatcher::instance()->registeredTimers(&surface).isEmpty(); }
};

TEST_F(EditSurfaceDesktop, ADragSelectsFromWhereItBegan)
{
    surface.setText(QStringLiteral("one two\r\nthree four"));
    press(4);
    drag(11);
    EXPECT_EQ(surface.SelText(), QStringLiteral("two\r\nth"));
    drag(1);
    EXPECT_EQ(surface.SelText(), QStringLiteral("ne "));
    release(1);
    EXPECT_EQ(selection(), Selection(1, 3));
}

TEST_F(EditSurfaceDesktop, ADragBehindADoubleClickSelectsByWords)
{
    surface.setText(QStringLiteral("one two three four"));
    doubleClick(5);
    drag(10);
    EXPECT_EQ(surface.SelText(), QStringLiteral("two three"));
    drag(1);
    EXPECT_EQ(surface.SelText(), QStringLiteral("one two"));
    release(1);
}

TEST_F(EditSurfaceDesktop, ADragBehindAThirdClickSelectsByLines)
{
    surface.setText(QStringLiteral("one\r\ntwo\r\nthree\r\nfour"));
    doubleClick(6);
    release(6);
    press(6);
    EXPECT_EQ(surface.SelText(), QStringLiteral("two\r\n"));
    drag(12);
    EXPECT_EQ(surface.SelText(), QStringLiteral("two\r\nthree\r\n"));
    drag(1);
    EXPECT_EQ(surface.SelText(), QStringLiteral("one\r\ntwo\r\n"));
    release(1);
}

TEST_F(EditSurfaceDesktop, AClickOnTheSelectionCollapsesItWhenTheButtonGoesUp)
{
    surface.setText(QStringLiteral("one two"));
    select(0, 7);
    press(3);
    EXPECT_EQ(surface.SelLength(), 7) << "it may become a drag";
    release(3);
    EXPECT_EQ(selection(), Selection(3, 0));
}

TEST_F(EditSurfaceDesktop, TheMiddleButtonPutsInWhatWasSelectedLast)
{
    if (!QGuiApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this display has no selection beside the clipboard";
    surface.setText(QStringLiteral("one two"));
    doubleClick(5);
    release(5);
    EXPECT_EQ(QGuiApplication::clipboard()->text(QClipboard::Selection), QStringLiteral("two"));
    send(QEvent::MouseButtonRelease, placeOf(0) - QPoint(1, 0), Qt::MiddleButton, Qt::NoButton);
    EXPECT_EQ(surface.Text(), QStringLiteral("twoone two"));
}

TEST_F(EditSurfaceDesktop, ATouchpadScrollsByPixels)
{
    surface.setText(QStringLiteral("line\r\n").repeated(300));
    const int before = surface.positionOfCharacter(0).top();
    const QPointingDevice pad(QStringLiteral("pad"), 1, QInputDevice::DeviceType::TouchPad,
                              QPointingDevice::PointerType::Finger, QInputDevice::Capability::PixelScroll, 2, 0);
    const auto scroll = [&](int pixels) {
        const QPointF place(20, 20);
        QWheelEvent wheel(place, surface.viewport()->mapToGlobal(place), {0, pixels}, {0, pixels}, Qt::NoButton, {},
                          Qt::ScrollUpdate, false, Qt::MouseEventNotSynthesized, &pad);
        QApplication::sendEvent(surface.viewport(), &wheel);
    };
    scroll(-7);
    EXPECT_EQ(surface.positionOfCharacter(0).top(), before - 7);
    scroll(-400);
    const qsizetype top = surface.firstVisibleLine();
    EXPECT_GT(top, 5);
    const qsizetype shown = surface.characterFromLine(top + 2).value_or(0);
    const int place = surface.positionOfCharacter(shown).top();
    scroll(-5);
    EXPECT_EQ(surface.positionOfCharacter(shown).top(), place - 5);
    scroll(1000);
    EXPECT_EQ(surface.positionOfCharacter(0).top(), before);
}

TEST_F(EditSurfaceDesktop, WithoutBlinkingNothingWakesTheProgram)
{
    surface.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&surface));
    const int before = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    sendKey(Qt::Key_Right, {}, QString());
    surface.clearFocus();
    surface.setFocus();
    EXPECT_TRUE(surface.hasFocus());
    EXPECT_FALSE(hasTimer());
    QApplication::setCursorFlashTime(1000);
    surface.clearFocus();
    EXPECT_FALSE(hasTimer());
    surface.setFocus();
    EXPECT_TRUE(hasTimer());
    QApplication::setCursorFlashTime(before);
}

TEST_F(EditSurfaceDesktop, TheCaretStaysTenSecondsBehindTheLastKey)
{
    surface.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&surface));
    const int before = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(1000); // on for one half of it, off for the other
    const auto blink = [this](int times) {
        for (int i = 0; i < times && hasTimer(); ++i) {
            QTimerEvent tick(QAbstractEventDispatcher::instance()->registeredTimers(&surface).constFirst().timerId);
            QApplication::sendEvent(&surface, &tick);
        }
    };
    sendKey(Qt::Key_Right, {}, QString());
    blink(10);
    EXPECT_TRUE(hasTimer());
    sendKey(Qt::Key_Right, {}, QString()); // the ten seconds begin anew
    blink(19);
    EXPECT_TRUE(hasTimer());
    blink(1);
    EXPECT_FALSE(hasTimer()) << "a desktop at rest is not woken";
    sendKey(Qt::Key_Right, {}, QString());
    EXPECT_TRUE(hasTimer());
    QApplication::setCursorFlashTime(before);
}

TEST_F(EditSurfaceDesktop, InsertOverwritesNothing)
{
    surface.setText(QStringLiteral("ab"));
    sendKey(Qt::Key_Insert, {}, QString());
    sendCharacter(u'x');
    EXPECT_EQ(surface.Text(), QStringLiteral("xab"));
}

TEST_F(EditSurfaceDesktop, TheCaretIsAsWideAsTheDesktopHasIt)
{
    class WideCarets final : public QProxyStyle
    {
    public:
        int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
        {
            return metric == PM_TextCursorWidth ? 5 : QProxyStyle::pixelMetric(metric, option, widget);
        }
    } wide;
    surface.setText(QStringLiteral("   "));
    EXPECT_EQ(surface.inputMethodQuery(Qt::ImCursorRectangle).toRect().width(), 1);
    surface.setStyle(&wide);
    EXPECT_EQ(surface.inputMethodQuery(Qt::ImCursorRectangle).toRect().width(), 5);
    surface.setStyle(nullptr);
}

TEST_F(EditSurfaceDesktop, WhoeverReadsAloudIsToldOfTextAndCaret)
{
    constexpr int longestWait = 5000; // milliseconds until the bus of this display has told that somebody listens
    const bool listens = qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
    if (!QTest::qWaitFor([] { return QAccessible::isActive(); }, listens ? longestWait : 0))
        GTEST_SKIP() << "nobody listens on this display";
    surface.setText(QStringLiteral("a\r\nb"));
    surface.setSelStart(3);
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(takeNote);
    told.clear();
    sendCharacter(u'x');
    EXPECT_EQ(told, QStringList({QStringLiteral("put 2 x"), QStringLiteral("caret 3")}));
    told.clear();
    sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b"));
    sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b"));
    EXPECT_EQ(told, QStringList({QStringLiteral("gone 2 x"), QStringLiteral("caret 2"), QStringLiteral("gone 1 \n"),
                                 QStringLiteral("caret 1")}));
    told.clear();
    sendKey(Qt::Key_Left, {}, QString());
    EXPECT_EQ(told, QStringList({QStringLiteral("caret 0")}));
    QAccessible::installUpdateHandler(before);
}

TEST_F(EditSurfaceDesktop, TheDesktopsOwnKeysEditByWordsAndLines)
{
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        const char *text;
        qsizetype caret;
    } rows[] = {
        {Qt::Key_Backspace, Qt::ControlModifier, "one three\r\nfour", 4},
        {Qt::Key_Delete, Qt::ControlModifier, "one two \r\nfour", 8},
        {Qt::Key_Left, Qt::ControlModifier, "one two three\r\nfour", 4},
        {Qt::Key_Right, Qt::ControlModifier, "one two three\r\nfour", 13},
        {Qt::Key_Home, Qt::ControlModifier, "one two three\r\nfour", 0},
        {Qt::Key_End, Qt::ControlModifier, "one two three\r\nfour", 19},
        {Qt::Key_End, {}, "one two three\r\nfour", 13},
    };
    for (const auto &row : rows) {
        surface.setText(QStringLiteral("one two three\r\nfour"));
        surface.setSelStart(8);
        sendKey(row.key, row.modifiers, QString());
        EXPECT_EQ(surface.Text(), QString::fromLatin1(row.text)) << row.key;
        EXPECT_EQ(surface.SelStart(), row.caret) << row.key;
    }
}
} // namespace
