#include "userInput.h"

#include "realInput.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWidget>

namespace drive
{
namespace
{
/// Keys go to the window on top, whatever has taken the focus in the meantime.
QWidget &receiver(QWidget &control)
{
    QWidget *focused = QApplication::focusWidget();
    return focused ? *focused : control;
}

Qt::Key keyOf(const QString &character)
{
    const char32_t code = character.toUcs4().front();
    return code < 128 ? QTest::asciiToKey(static_cast<char>(code)) : static_cast<Qt::Key>(code);
}
} // namespace

ActionResult refused(const QString &reason)
{
    return {false, reason};
}

QString nameOf(const QObject &control)
{
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

void activateWindowOf(QWidget &control)
{
    if (QApplication::activeWindow() == control.window())
        return;
    control.window()->raise();
    QApplication::setActiveWindow(control.window());
}

void clickAt(QWidget &widget, const QPoint &point, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> alive(&widget); // a handler may end the form at the press already
    if (RealInput *input = RealInput::onThisDisplay()) {
        input->move(widget, point);
        input->withKeys(modifiers, [input] {
            input->press(Qt::LeftButton);
            input->release(Qt::LeftButton);
        });
        return;
    }
    activateWindowOf(widget);
    if (alive)
        QTest::mousePress(&widget, Qt::LeftButton, modifiers, point);
    if (alive)
        QTest::mouseRelease(&widget, Qt::LeftButton, modifiers, point);
}

void dblclickAt(QWidget &widget, const QPoint &point)
{
    const QPointer<QWidget> alive(&widget);
    clickAt(widget, point);
    if (alive)
        QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, point);
    if (alive)
        QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, point);
}

void pressKey(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&receiver(control), key, modifiers);
}

void typeText(QWidget &control, const QString &text)
{
    const QPointer<QWidget> alive(&control);
    for (qsizetype at = 0; at < text.size() && alive;) {
        const qsizetype length = text[at].isHighSurrogate() ? 2 : 1;
        const QString character = text.mid(at, length);
        QTest::sendKeyEvent(QTest::Click, &receiver(control), keyOf(character), character, Qt::NoModifier);
        at += length;
    }
}

void commitText(QWidget &control, const QString &text)
{
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QApplication::sendEvent(&receiver(control), &commit);
}
} // namespace drive
