#include "drive/events.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
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

bool isOnDisplay()
{
    return QGuiApplication::platformName() != QStringLiteral("offscreen");
}

/// A window manager and a display answer in their own time.
void awaitDisplay()
{
    constexpr int Milliseconds = 40;
    const QDeadlineTimer end(Milliseconds);
    while (!end.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(2);
    }
    dealWithEvents();
}

bool activateLastWindow()
{
    // A popup that has gone may still pass for the active window.
    const QWidget *active = QApplication::activeWindow();
    if ((active && active->isVisible()) || QApplication::activePopupWidget())
        return false;
    const auto *order = QCoreApplication::instance()->findChild<ActivationOrder *>();
    QWidget *last = order ? order->lastVisible() : nullptr;
    if (last)
        last->activateWindow();
    return last != nullptr;
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
    if (isOnDisplay())
        awaitDisplay();
    else if (activateLastWindow())
        dealWithEvents();
}

void letPass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool comesTrue(const std::function<bool()> &condition, int milliseconds)
{
    constexpr int Slice = 10; // milliseconds
    const QDeadlineTimer end(milliseconds);
    while (!condition()) {
        if (end.hasExpired())
            return false;
        letPass(Slice);
    }
    return true;
}

ActivationOrder::ActivationOrder(QObject &application) : QObject(&application)
{
    application.installEventFilter(this);
}

QWidget *ActivationOrder::lastVisible() const
{
    for (auto window = m_windows.rbegin(); window != m_windows.rend(); ++window)
        if (*window && (*window)->isVisible() && !(*window)->isMinimized())
            return *window;
    return nullptr;
}

bool ActivationOrder::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = event->type() == QEvent::WindowActivate ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window && window->isWindow()) {
        m_windows.removeAll(window);
        m_windows.removeAll(nullptr);
        m_windows.append(window);
    }
    return QObject::eventFilter(watched, event);
}
} // namespace drive
