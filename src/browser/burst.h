#pragma once

#include <QElapsedTimer>
#include <QQueue>

/// Tells when something happens too often within a time.
class Burst
{
public:
    Burst(int tooMany, int milliseconds) : m_tooMany(tooMany), m_milliseconds(milliseconds) { m_clock.start(); }

    /// It has happened once more. True if that was one time too many.
    bool happens() { return happensAt(m_clock.elapsed()); }
    /// The same at a time of the caller's, in milliseconds that never run backwards.
    bool happensAt(qint64 now);
    void forget() { m_times.clear(); }

private:
    int m_tooMany;
    int m_milliseconds;
    QElapsedTimer m_clock;
    QQueue<qint64> m_times; ///< the last ones
};
