#pragma once

#include <QEvent>
#include <QObject>
#include <functional>

class QLineEdit;
class QWidget;

/// The widget that gets a control's focus events and keys.
QWidget *keysOf(QWidget *control);

/// The text box that is typed into: the control itself, or the one in an editable combo or a colour picker. Nothing for
/// other controls.
QLineEdit *lineEditOf(QWidget *control);

/// Runs a handler at the control's events of one kind, before the control's own handling: a click that brings the focus
/// still places the caret afterwards. The handler returns true for an event that is to go no further.
class ControlWatch final : public QObject
{
public:
    using Handler = std::function<bool(const QEvent &)>;

    ControlWatch(QObject *control, QEvent::Type type, Handler handler);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QEvent::Type m_type;
    Handler m_handler;
};
