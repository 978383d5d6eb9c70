#include "browser/burst.h"

bool Burst::happensAt(qint64 now)
{
    m_times.enqueue(now);
    if (m_times.size() > m_tooMany)
        m_times.dequeue();
    return m_times.size() == m_tooMany && now - m_times.head() <= m_milliseconds;
}
