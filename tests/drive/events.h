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
