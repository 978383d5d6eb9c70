#pragma once

#include <QDateTime>

class Clock
{
public:
    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    /// This moment, in local time.
    virtual QDateTime now() = 0;
};

class SystemClock final : public Clock
{
public:
    QDateTime now() override { return QDateTime::currentDateTime(); }
};
