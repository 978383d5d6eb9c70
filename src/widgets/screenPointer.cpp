#include "widgets/screenPointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace
{
constexpr int SoonMilliseconds = 100;

bool isPointedAt(const QWindow *window)
{
    return window->isVisible() && window->type() != Qt::SplashScreen;
}
} // namespace

ScreenPointer::ScreenPointer()
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(SoonMilliseconds);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { show(); });
}

ScreenPointer::~ScreenPointer()
{
    setMousePointer(PointerShape::Default);
}

void ScreenPointer::setMousePointer(PointerShape pointer)
{
    if (pointer == m_pointer)
        return;
    m_soon.stop();
    if (std::exchange(m_shown, false))
        QGuiApplication::restoreOverrideCursor();
    m_pointer = pointer;
    if (pointer == PointerShape::Hourglass)
        show();
    else if (pointer == PointerShape::ArrowHourglass)
        m_soon.start();
}

void ScreenPointer::show()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    if (!std::any_of(windows.begin(), windows.end(), isPointedAt))
        return;
    QGuiApplication::setOverrideCursor(m_pointer == PointerShape::Hourglass ? Qt::WaitCursor : Qt::BusyCursor);
    m_shown = true;
}
