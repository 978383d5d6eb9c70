#include "document/afterChanges.h"

#include "surface/editSurface.h"

#include <utility>

namespace
{
/// Up to this length a text is read at each key.
constexpr qsizetype ReadAtOnce = 65536;
constexpr int PauseMilliseconds = 150;
} // namespace

AfterChanges::AfterChanges(EditSurface &edit, std::function<bool()> isWanted, std::function<void()> act)
    : m_edit(edit), m_isWanted(std::move(isWanted)), m_act(std::move(act))
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] { m_act(); });
    connect(&edit, &EditSurface::Change, this, [this] { noteChange(); });
}

void AfterChanges::noteChange()
{
    if (!m_isWanted())
        return;
    if (m_edit.textLength() <= ReadAtOnce)
        soon();
    else
        m_pause.start(PauseMilliseconds);
}

void AfterChanges::soon()
{
    m_pause.stop();
    if (std::exchange(m_queued, true))
        return;
    const auto act = [this] {
        m_queued = false;
        m_act();
    };
    QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
}
