#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

namespace drive
{
/// Runs an act inside an event of its own, as everything that a user causes runs. What it deletes "later" is gone once
/// it has returned and the events behind it are dealt with, and no sooner: a modal form shown by the handler of a
/// button does not take the button away under its handler.
void insideEvent(const std::function<void()> &act);

/// Deals with events until there are none left. Where the active window has gone, the one that was active before it is
/// activated, as a desktop does.
void settle();

/// Lets real time pass, in milliseconds. The program's event loop turns all the while without a pause: the engine of
/// the page view does one piece of its work a turn, and would fall behind its pages.
void letPass(int milliseconds);
/// Lets real time pass until the condition holds, for at most so many milliseconds. False if it never did.
bool comesTrue(const std::function<bool()> &condition, int milliseconds);

/// Remembers in which order windows were active, for as long as it lives. A child of the application object.
class ActivationOrder final : public QObject
{
    Q_OBJECT
public:
    explicit ActivationOrder(QObject &application);

    QWidget *lastVisible() const; ///< nothing if no window is on show

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QPointer<QWidget>> m_windows; ///< the one that was active last stands at the end
};
} // namespace drive
