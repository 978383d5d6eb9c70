#include "widgets/controlWatch.h"

#include "widgets/colourSelection.h"
#include "widgets/controls.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

ControlWatch::ControlWatch(QObject *control, QEvent::Type type, Handler handler)
    : QObject(control), m_type(type), m_handler(std::move(handler))
{
    control->installEventFilter(this);
}

bool ControlWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != m_type)
        return QObject::eventFilter(watched, event);
    const Handler handler = m_handler; // it may destroy the control, and this with it
    return handler(*event);
}

namespace
{
/// Keys with Ctrl or Alt are commands, such as Paste, and no characters; some input sources send the letter with them.
/// Both together make the third sign of a key on many keyboards.
bool isRefused(const QKeyEvent &key)
{
    const QString typed = key.text();
    const auto held = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isCommand = held && held != (Qt::ControlModifier | Qt::AltModifier);
    return !isCommand && !typed.isEmpty() && typed[0].isPrint() && (typed[0] < u'0' || typed[0] > u'9');
}
/// The list of a combo and the menu of a text box have the focus only for as long as they are open.
bool isOfPopup(const QEvent &focus)
{
    return QApplication::activePopupWidget() ||
           static_cast<const QFocusEvent &>(focus).reason() == Qt::PopupFocusReason;
}
} // namespace

QWidget *keysOf(QWidget *control)
{
    // An editable combo gets these events for its field, and hands them on past any filter.
    return control->focusProxy() ? control->focusProxy() : control;
}

QLineEdit *lineEditOf(QWidget *control)
{
    if (auto *edit = qobject_cast<QLineEdit *>(control))
        return edit;
    if (const auto *combo = qobject_cast<QComboBox *>(control))
        return combo->lineEdit();
    const auto *colour = qobject_cast<ColourSelection *>(control);
    return colour ? colour->textField() : nullptr;
}

namespace ui
{
void onGotFocus(QWidget *control, const Handler &handler)
{
    new ControlWatch(keysOf(control), QEvent::FocusIn, [handler](const QEvent &event) {
        if (!isOfPopup(event))
            handler();
        return false;
    });
}

void onLostFocus(QWidget *control, const Handler &handler)
{
    new ControlWatch(keysOf(control), QEvent::FocusOut, [handler](const QEvent &event) {
        if (!isOfPopup(event))
            handler();
        return false;
    });
}

void onKeyDown(QWidget *control, const KeyHandler &handler)
{
    new ControlWatch(keysOf(control), QEvent::KeyPress,
                     [handler](const QEvent &event) { return handler(static_cast<const QKeyEvent &>(event)); });
}
} // namespace ui

void SetNumbersOnly(QWidget *control)
{
    // Pasted text is left alone, as the keyboard alone is bound.
    if (QLineEdit *edit = lineEditOf(control))
        new ControlWatch(keysOf(edit), QEvent::KeyPress,
                         [](const QEvent &event) { return isRefused(static_cast<const QKeyEvent &>(event)); });
}

void SelectAllText(QWidget *control)
{
    if (QLineEdit *edit = lineEditOf(control))
        edit->selectAll();
    else if (auto *area = qobject_cast<QPlainTextEdit *>(control))
        area->selectAll();
}
