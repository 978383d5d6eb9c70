#pragma once

#include "services/timer.h"

/// For a timer that stands for an event: it may be enabled, but only fire() runs it, when the event comes.
class StillTimerSource final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()>) override
    {
        class Still final : public Ticker
        {
        public:
            void start(int) override {}
            void stop() override {}
        };
        return std::make_unique<Still>();
    }
};
