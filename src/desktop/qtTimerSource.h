#pragma once

#include "services/timer.h"

/// Tickers that tick in the event loop.
class QtTimerSource final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override;
};
