// What the user does to the surface: keys, mouse, input methods, clipboard, drops; and what a locked one lets through.
#include "surfaceFixture.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>

namespace
{
class EditSurfaceInput : public EditSurfaceTest
{
protected:
    void drop(const QMimeData &data, const QPoint &at = {5, 5})
    {
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(surface.viewport(), &enter);
        accepted = enter.isAccepted();
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(surface.viewport(), &event);
    }
    void commit(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&surface, &event);
    }
    void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        sendKey(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
    }

    bool accepted = false;
};

TEST_F(EditSurfaceInput, TabAndEnterGoIntoTheText)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    sendKey(Qt::Key_Tab, {}, QStringLiteral("\t"));
    sendKey(Qt::Key_Return, {}, QStringLiteral("\r"));
    sendKey(Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"));
    sendKey(Qt::Key_Return, Qt::ShiftModifier, QStringLiteral("\r"));
    EXPECT_EQ(surface.Text(), QStringLiteral("a\t\r\n\r\n\r\nb"));
    EXPECT_EQ(selection(), Selection(8, 0));
}

TEST_F(EditSurfaceInput, KeysReachTheOwnerFirstAndInTheirOrder)
{
    QStringList seen;
    SurfaceHooks hooks;
    hooks.keyDown = [&](SurfaceKey &key) { seen << QStringLiteral("down %1 %2").arg(key.key).arg(int(key.modifiers)); };
    hooks.keyPress = [&](SurfaceCharacter &c) { seen << QStringLiteral("press ") + c.text + u'/' + surface.Text(); };
    hooks.keyUp = [&](SurfaceKey &key) { seen << QStringLiteral("up %1 ").arg(key.key) + surface.Text(); };
    surface.setHooks(hooks);
    sendCharacter(u'a');
    const int shift = Qt::ShiftModifier;
    sendKey(Qt::Key_Backtab, Qt::ShiftModifier, QString());
    sendKey(Qt::Key_Delete, {}, QStringLiteral("\x7f"));
    const QStringList expected = {
        QStringLiteral("down %1 0").arg(int(Qt::Key_A)),
        QStringLiteral("press a/"),
        QStringLiteral("up %1 a").arg(int(Qt::Key_A)),
        QStringLiteral("down %1 %2").arg(int(Qt::Key_Tab)).arg(shift),
        QStringLiteral("up %1 a").arg(int(Qt::Key_Tab)),
        QStringLiteral("down %1 0").arg(int(Qt::Key_Delete)),
        QStringLiteral("up %1 a").arg(int(Qt::Key_Delete)),
    };
    EXPECT_EQ(seen, expected);
}

TEST_F(EditSurfaceInput, TheOwnerDiscardsKeysAndCharacters)
{
    SurfaceHooks hooks;
    int presses = 0;
    hooks.keyDown = [](SurfaceKey &key) { key.discard = key.key == Qt::Key_A; };
    hooks.keyPress = [&](SurfaceCharacter &c) {
        ++presses;
        if (c.text == QStringLiteral(">")) {
            surface.setSelText(QStringLiteral("]"));
            c.discard = true;
        }
    };
    surface.setHooks(hooks);
    for (const QChar c : QStringLiteral("ab>c"))
        sendCharacter(c);
    EXPECT_EQ(surface.Text(), QStringLiteral("b]c"));
    EXPECT_EQ(presses, 3) << "no character comes of a discarded key";
    commit(QStringLiteral(">"));
    commit(QStringLiteral("x\u2028"));
    EXPECT_EQ(surface.Text(), QStringLiteral("b]c]x\u2028"));
    EXPECT_EQ(presses, 5);
}

TEST_F(EditSurfaceInput, MouseHooksTellPositionsOfTheSurface)
{
    surface.setLineNumbers(true);
    surface.setText(QStringLiteral("abcdef"));
    QList<SurfaceMouse> seen;
    SurfaceHooks hooks;
    hooks.mouseDown = hooks.mouseUp = [&](SurfaceMouse &mouse) { seen << mouse; };
    surface.setHooks(hooks);
    const QPoint place = surface.positionOfCharacter(3).center();
    const QPoint inViewport = place - surface.viewport()->pos();
    QTest::mouseClick(surface.viewport(), Qt::RightButton, Qt::ControlModifier, inViewport);
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen[0].position, place);
    EXPECT_EQ(seen[0].button, Qt::RightButton);
    EXPECT_EQ(seen[1].modifiers, Qt::ControlModifier);
    hooks.mouseDown = [](SurfaceMouse &mouse) { mouse.discard = true; };
    surface.setHooks(hooks);
    QTest::mouseClick(surface.viewport(), Qt::LeftButton, {}, inViewport);
    EXPECT_EQ(surface.SelStart(), 0) << "a discarded press does not move the caret";
    surface.setHooks({});
    QTest::mouseClick(surface.viewport(), Qt::LeftButton, {}, inViewport);
    EXPECT_EQ(surface.SelStart(), 3);
}

TEST_F(EditSurfaceInput, PastesPlainTextExactly)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    QSignalSpy changes(&surface, &EditSurface::Change);
    auto *rich = new QMimeData;
    rich->setHtml(QStringLiteral("<b>bold</b>"));
    rich->setText(QStringLiteral("x\ny\u2029\u00A0"));
    QApplication::clipboard()->setMimeData(rich);
    sendKey(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
    EXPECT_EQ(surface.Text(), QStringLiteral("ax\r\ny\u2029\u00A0b"));
    EXPECT_EQ(surface.formatOf(0, 8), (TextFormat{WindowTextColour, false, false}));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(EditSurfaceInput, PastesNoFilesAndNoPictures)
{
    auto *files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(QStringLiteral("/home/a.htm"))});
    files->setText(QStringLiteral("/home/a.htm"));
    QApplication::clipboard()->setMimeData(files);
    sendKey(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
    auto *picture = new QMimeData;
    picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(picture);
    sendKey(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
    EXPECT_EQ(surface.Text(), QString());
}

TEST_F(EditSurfaceInput, CopiesPlainTextOnly)
{
    surface.setText(QStringLiteral("a\u00A0\r\n\u2028b"));
    select(0, 100);
    sendKey(Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03"));
    const QMimeData *copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), QStringLiteral("a\u00A0\n\u2028b"));
    EXPECT_FALSE(copied->hasHtml());
}

TEST_F(EditSurfaceInput, TakesDroppedText)
{
    surface.setText(QStringLiteral("ab"));
    QSignalSpy changes(&surface, &EditSurface::Change);
    QMimeData text;
    text.setText(QStringLiteral("x\u2028\ny"));
    drop(text, surface.positionOfCharacter(1).center() - surface.viewport()->pos());
    EXPECT_TRUE(accepted);
    EXPECT_EQ(surface.Text(), QStringLiteral("ax\u2028\r\nyb"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(EditSurfaceInput, HandsDroppedTextToAnOwnerThatWantsIt)
{
    surface.setText(QStringLiteral("ab"));
    QString dropped;
    SurfaceHooks hooks;
    hooks.textDropped = [&](const QString &text) { dropped = text; };
    surface.setHooks(hooks);
    QMimeData text;
    text.setText(QStringLiteral("x\ny"));
    drop(text);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(dropped, QStringLiteral("x\ny"));
    EXPECT_EQ(surface.Text(), QStringLiteral("ab"));
    surface.setLocked(true);
    text.setText(QStringLiteral("z"));
    drop(text);
    EXPECT_FALSE(accepted);
    EXPECT_EQ(dropped, QStringLiteral("x\ny"));
}

TEST_F(EditSurfaceInput, TellsWhatAnInputMethodCommitsFromWhatIsTyped)
{
    QStringList seen;
    SurfaceHooks hooks;
    hooks.keyPress = [&](SurfaceCharacter &c) { seen << c.text + (c.committed ? u'c' : u't'); };
    surface.setHooks(hooks);
    sendCharacter(u'a');
    commit(QStringLiteral("b"));
    EXPECT_EQ(seen, (QStringList{QStringLiteral("at"), QStringLiteral("bc")}));
}

TEST_F(EditSurfaceInput, HandsDroppedFilesToTheOwner)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/a b.htm")), QUrl(QStringLiteral("http://example.org/"))});
    drop(files);
    EXPECT_FALSE(accepted) << "nobody takes files";
    QStringList dropped;
    SurfaceHooks hooks;
    qsizetype where = -1;
    hooks.filesDropped = [&](const QStringList &paths, qsizetype place) {
        dropped = paths;
        where = place;
    };
    surface.setHooks(hooks);
    surface.setText(QStringLiteral("abc"));
    drop(files, surface.positionOfCharacter(1).center() - surface.viewport()->pos());
    EXPECT_TRUE(accepted);
    EXPECT_EQ(dropped, QStringList{QStringLiteral("/home/a b.htm")});
    EXPECT_EQ(where, 1);
    EXPECT_EQ(surface.Text(), QStringLiteral("abc"));
}

TEST_F(EditSurfaceInput, ComposingIsNoChangeUntilItIsCommitted)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    QSignalSpy changes(&surface, &EditSurface::Change);
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QApplication::sendEvent(&surface, &composing);
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(surface.Text(), QStringLiteral("ab"));
    commit(QStringLiteral("\u4F60"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(surface.Text(), QStringLiteral("a\u4F60b"));
}

TEST_F(EditSurfaceInput, ComposingOverASelectionTakesItAway)
{
    surface.setText(QStringLiteral("abcd"));
    select(1, 2);
    QSignalSpy changes(&surface, &EditSurface::Change);
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QApplication::sendEvent(&surface, &composing);
    EXPECT_EQ(surface.Text(), QStringLiteral("ad"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(EditSurfaceInput, LockedKeepsTheUserFromTheTextAndNothingElse)
{
    surface.setText(QStringLiteral("ab cd"));
    select(1, 2);
    QStringList seen;
    SurfaceHooks hooks;
    hooks.keyDown = [&](SurfaceKey &key) { seen << QString::number(key.key); };
    hooks.filesDropped = [&](const QStringList &, qsizetype) { seen << QStringLiteral("files"); };
    surface.setHooks(hooks);
    surface.setLocked(true);
    QSignalSpy changes(&surface, &EditSurface::Change);
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        const char *text;
    } keys[] = {
        {Qt::Key_A, {}, "a"},
        {Qt::Key_Return, {}, "\r"},
        {Qt::Key_Tab, {}, "\t"},
        {Qt::Key_Backspace, {}, "\b"},
        {Qt::Key_Delete, {}, "\x7f"},
        {Qt::Key_X, Qt::ControlModifier, "\x18"},
        {Qt::Key_Delete, {}, ""},
        {Qt::Key_Backspace, {}, ""},
        {Qt::Key_Return, Qt::ShiftModifier, "\r"},
        {Qt::Key_K, Qt::ControlModifier, "\x0b"},
        {Qt::Key_Delete, Qt::ControlModifier, "\x7f"},
        {Qt::Key_Delete, Qt::ShiftModifier, ""},
        {Qt::Key_Cut, {}, ""},
    };
    for (const auto &key : keys)
        sendKey(key.key, key.modifiers, QString::fromLatin1(key.text));
    paste(QStringLiteral("pasted"));
    sendKey(Qt::Key_Insert, Qt::ShiftModifier, QString());
    commit(QStringLiteral("committed"));
    commit(QStringLiteral("\u2028"));
    QMimeData text;
    text.setText(QStringLiteral("dropped"));
    drop(text);
    EXPECT_FALSE(accepted);
    EXPECT_EQ(surface.Text(), QStringLiteral("ab cd"));
    EXPECT_EQ(selection(), Selection(1, 2));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(seen.size(), std::ssize(keys) + 2) << "keys are seen all the same";
    EXPECT_TRUE(surface.isEnabled());
    EXPECT_TRUE(surface.hasFocus());
}

TEST_F(EditSurfaceInput, LockedLetsTheCaretMoveAndTextBeCopiedAndTheProgramWrite)
{
    surface.setText(QStringLiteral("ab cd"));
    surface.setLocked(true);
    EXPECT_TRUE(surface.Locked());
    sendKey(Qt::Key_Right, {}, QString());
    EXPECT_EQ(surface.SelStart(), 1);
    sendKey(Qt::Key_End, Qt::ShiftModifier, QString());
    EXPECT_EQ(selection(), Selection(1, 4));
    sendKey(Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("b cd"));
    sendKey(Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01"));
    EXPECT_EQ(selection(), Selection(0, 5));
    surface.setSelText(QStringLiteral("new"));
    EXPECT_EQ(surface.Text(), QStringLiteral("new"));
    surface.setLocked(false);
    sendCharacter(u'x');
    EXPECT_EQ(surface.Text(), QStringLiteral("newx"));
}

TEST_F(EditSurfaceInput, SetFocusTakesTheFocusInTheActiveWindowOnly)
{
    QWidget other;
    auto *layout = new QVBoxLayout(&other);
    auto *first = new QWidget(&other);
    first->setFocusPolicy(Qt::StrongFocus);
    auto *inOther = new EditSurface(&other);
    layout->addWidget(first);
    layout->addWidget(inOther);
    other.show();
    first->setFocus();
    surface.activateWindow();
    surface.setFocus();
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), &surface);
    inOther->SetFocus();
    EXPECT_EQ(QApplication::focusWidget(), &surface);
    EXPECT_EQ(other.focusWidget(), inOther) << "it waits for its window";
    other.activateWindow();
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), inOther);
    first->setFocus();
    inOther->SetFocus();
    EXPECT_EQ(QApplication::focusWidget(), inOther);
}

TEST_F(EditSurfaceInput, SetFocusDoesNotBringAnInnerWindowToTheFront)
{
    QMdiArea area;
    auto *one = new EditSurface;
    auto *two = new EditSurface;
    QMdiSubWindow *oneWindow = area.addSubWindow(one);
    QMdiSubWindow *twoWindow = area.addSubWindow(two);
    area.show();
    oneWindow->show();
    twoWindow->show();
    area.activateWindow();
    area.setActiveSubWindow(twoWindow);
    two->SetFocus();
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), two);
    one->SetFocus();
    QApplication::processEvents();
    EXPECT_EQ(area.activeSubWindow(), twoWindow);
    EXPECT_EQ(QApplication::focusWidget(), two);
}
} // namespace
