#pragma once

#include <QList>
#include <QObject>
#include <functional>

class QToolBar;
class QToolButton;

/// Lets the keyboard into tool bars. Tab leads to one button of each bar, which is the one that had the focus there
/// last; arrow keys, Home and End go from button to button, Space and Enter press it, Down opens its menu, Escape
/// leaves.
class BarKeys final : public QObject
{
    Q_OBJECT
public:
    /// `leave` puts the keyboard where Escape is to lead.
    BarKeys(std::function<void()> leave, QObject *parent);

    /// Takes a bar with all the buttons that it has now.
    void add(QToolBar &bar);
    /// The button of the bar that Tab leads to; nothing where none can be pressed.
    static QToolButton *entrance(const QToolBar &bar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(QToolButton &button, int key);

    std::function<void()> m_leave;
};
