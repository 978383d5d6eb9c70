#include "common/notices.h"

#include <algorithm>

void Notices::put(const Notice &notice)
{
    const qsizetype standing = indexOf(notice.key);
    if (standing >= 0 && m_waiting[standing].kind == notice.kind) {
        m_waiting[standing] = notice;
    } else {
        if (standing >= 0)
            m_waiting.removeAt(standing);
        insert(notice);
    }
    tell();
}

/// Behind all that stand before it or beside it in rank.
void Notices::insert(const Notice &notice)
{
    const auto behind = std::find_if(m_waiting.begin(), m_waiting.end(),
                                     [&](const Notice &waiting) { return waiting.kind > notice.kind; });
    m_waiting.insert(behind, notice);
}

void Notices::remove(const QString &key)
{
    const qsizetype standing = indexOf(key);
    if (standing < 0)
        return;
    m_waiting.removeAt(standing);
    tell();
}

bool Notices::holds(const QString &key) const
{
    return indexOf(key) >= 0;
}

void Notices::press(int button)
{
    if (m_waiting.isEmpty() || button < 0 || button >= m_waiting.first().buttons.size())
        return;
    // A copy: what it runs may put, take away and answer notices, this one too.
    const Notice notice = m_waiting.first();
    const NoticeButton &pressed = notice.buttons[button];
    if (!pressed.enabled)
        return;
    if (pressed.answers)
        remove(notice.key);
    if (pressed.pressed)
        pressed.pressed();
}

qsizetype Notices::indexOf(const QString &key) const
{
    const auto found =
        std::find_if(m_waiting.begin(), m_waiting.end(), [&](const Notice &notice) { return notice.key == key; });
    return found == m_waiting.end() ? -1 : found - m_waiting.begin();
}

void Notices::tell() const
{
    if (m_changed)
        m_changed();
}
