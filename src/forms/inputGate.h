#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

/// Keeps the user's input from a window while its flag says so. Disabling the widget itself would move the focus and
/// run handlers that must not run; behind a closed gate nothing happens at all.
class InputGate final : public QObject
{
    Q_OBJECT
public:
    /// `refused` runs when the user presses a mouse button on the window in vain.
    InputGate(QWidget &window, std::function<void()> refused);

    bool isOpen() const { return m_open; }
    void setOpen(bool open);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool guards(const QObject *object) const;

    QPointer<QWidget> m_window;
    std::function<void()> m_refused;
    bool m_open = true;
};
