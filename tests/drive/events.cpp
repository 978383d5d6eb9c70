#include "drive/events.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace drive
{
namespace
{
class Actor final : public QObject
{
public:
    explicit Actor(const std::function<void()> &act) : m_act(act) {}
    bool event(QEvent *) override
    {
        m_act();
        return true;
    }

private:
    const std::function<void()> &m_act;
};

/// Enough for any chain of events that one act causes; a program that repaints without end must not stop the script.
constexpr int MostTurns = 200;

void dealWithEvents()
{
    for (int turn = 0; turn < MostTurns; ++turn)
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            return;
}

/// When the active window goes, a desktop activates the one below it.
bool activateTopWindow()
{
    if (QApplication::activeWindow() || QApplication::activePopupWidget())
        return false;
    QWidget *top = QApplication::activeModalWidget();
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets)
        if (!top && widget->isVisible() && widget->windowType() != Qt::ToolTip)
            top = widget;
    if (top)
        top->activateWindow();
    return top != nullptr;
}
} // namespace

void insideEvent(const std::function<void()> &act)
{
    Actor actor(act);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&actor, &event);
}

void settle()
{
    dealWithEvents();
    if (activateTopWindow())
        dealWithEvents();
}
} // namespace drive
